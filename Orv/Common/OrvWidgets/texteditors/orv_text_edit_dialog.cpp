#include "orv_text_edit_dialog.h"

#include "orv_text_editor2.h"

#include <QHBoxLayout>
#include <QMetaMethod>
#include <QTextDocument>
#include <QTextEdit>

namespace OrvWidgets {

namespace {

// Puts the style fragment into the body style of the HTML. The document's own
// HTML writes the body style as " font-family:...", so the fragment goes right
// in front of the first "font-family". Without one, the fragment opens the
// <body> tag's style attribute (created if missing); HTML without a <body> tag
// has no place for a page colour and is returned unchanged.
QString insertBodyStyle(const QString& html, const QString& fragment)
{
    const int fontFamily = html.indexOf(QLatin1String("font-family"));
    if (fontFamily >= 0)
        return QString(html).insert(fontFamily, fragment);

    const int body = html.indexOf(QLatin1String("<body"), 0, Qt::CaseInsensitive);
    if (body < 0)
        return html;
    const int tagEnd = html.indexOf(QLatin1Char('>'), body);
    if (tagEnd < 0)
        return html;
    const QLatin1String styleOpen("style=\"");
    const int style = html.indexOf(styleOpen, body, Qt::CaseInsensitive);
    if (style >= 0 && style < tagEnd)
        return QString(html).insert(style + styleOpen.size(), fragment);
    return QString(html).insert(tagEnd, QLatin1String(" style=\"") + fragment + QLatin1Char('"'));
}

} // namespace

OrvTextEditDialog::OrvTextEditDialog(QWidget* parent)
    : OrvDialog(parent, OkApplyCancel, true)
    , m_textEditor2(new OrvTextEditor2(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_textEditor2);

    if (QTextEdit* edit = m_textEditor2->textEdit())
        connect(edit, &QTextEdit::textChanged, this, &OrvTextEditDialog::emitTextChanged);
    connect(m_textEditor2, &OrvTextEditor2::backgroundColorChanged, this,
            &OrvTextEditDialog::onBackgroundColorChanged);
    m_textEditor2->enableBackgroundColor(false);

    retranslate();
}

OrvTextEditDialog::~OrvTextEditDialog() = default;

void OrvTextEditDialog::setHtml(const QString& html)
{
    if (m_textEditor2 && m_textEditor2->textEdit())
        m_textEditor2->textEdit()->setHtml(html);
}

QString OrvTextEditDialog::getHtmlText() const
{
    if (!m_textEditor2 || !m_textEditor2->textEdit() || !m_textEditor2->textEdit()->document())
        return QString();
    return m_textEditor2->textEdit()->document()->toHtml();
}

void OrvTextEditDialog::enableBackgroundColor(bool enable)
{
    if (m_textEditor2)
        m_textEditor2->enableBackgroundColor(enable);
}

void OrvTextEditDialog::setInitialBackgroundColor(const QColor& color)
{
    if (m_textEditor2)
        m_textEditor2->setInitialBackgroundColor(color);
}

void OrvTextEditDialog::retranslate()
{
    // Through a variable: lupdate would read a direct argument as a context.
    const QString title = tr("Edit Text");
    translate(title);
}

void OrvTextEditDialog::emitTextChanged()
{
    // Writing the whole document as HTML on every keystroke is wasted work
    // when nobody listens.
    static const QMetaMethod textChanged = QMetaMethod::fromSignal(&OrvTextEditDialog::signalTextChanged);
    if (isSignalConnected(textChanged))
        Q_EMIT signalTextChanged(getHtmlText());
}

void OrvTextEditDialog::onBackgroundColorChanged(const QColor& color)
{
    slotChangesMade();
    Q_EMIT signalBackgroundColorChanged(color);
}

bool OrvTextEditDialog::apply()
{
    const QString html = getHtmlText();
    const QColor background = m_textEditor2 ? m_textEditor2->backgroundColor() : QColor();
    const QString fragment =
        QStringLiteral("background-color:'%1'; ").arg(background.name(QColor::HexRgb));

    const QPointer<OrvTextEditDialog> guard(this);
    Q_EMIT signalTextApplied(html);
    // A receiver may have closed and deleted the page; the caller checks that too.
    if (!guard)
        return true;
    Q_EMIT signalTextAppliedWithBackGroundColor(insertBodyStyle(html, fragment));
    return true;
}

void OrvTextEditDialog::dialogCanceled()
{
    Q_EMIT signalDialogCanceled();
    OrvDialog::dialogCanceled();
}

} // namespace OrvWidgets
