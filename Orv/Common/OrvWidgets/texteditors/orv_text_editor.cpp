#include "orv_text_editor.h"
#include "orv_logging_p.h"

#include <QAccessible>
#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace OrvWidgets {

namespace {

constexpr int kWarningMs = 2500;

// The formatting row of the compact editor, in the order shown.
constexpr OrvTextEditor2::Action kRowActions[] = {OrvTextEditor2::Bold, OrvTextEditor2::Italic,
                                                  OrvTextEditor2::Underline, OrvTextEditor2::BulletList,
                                                  OrvTextEditor2::NumberedList};

} // namespace

class OrvTextEditorPrivate
{
public:
    OrvTextEditor2* editor = nullptr;
    QLabel* counter = nullptr;
    QTimer* warning = nullptr;
    int maximum = 0;
    bool plain = false;
    bool trimming = false;
    int lastPosition = 0;
    int lastAdded = 0;

    QTextDocument* document() const { return editor->textEdit()->document(); }
    int length() const { return qMax(0, document()->characterCount() - 1); }

    // Every action that changes formatting: in plain-text mode none of them may act,
    // by button or by shortcut.
    QList<QAction*> formattingActions() const
    {
        QList<QAction*> actions;
        for (int a = OrvTextEditor2::Bold; a <= OrvTextEditor2::BackgroundColor; ++a) {
            if (a != OrvTextEditor2::Undo && a != OrvTextEditor2::Redo)
                actions << editor->action(OrvTextEditor2::Action(a));
        }
        return actions;
    }

    void updateCounter()
    {
        counter->setText(OrvTextEditor::tr("%1 / %2").arg(QLocale().toString(length()), QLocale().toString(maximum)));
    }

    QColor warningColor(const QWidget* widget) const
    {
        const bool dark = widget->palette().color(QPalette::Window).lightness() < 128;
        return dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xc6, 0x28, 0x28);
    }
};

OrvTextEditor::OrvTextEditor(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<OrvTextEditorPrivate>())
{
    setObjectName(QStringLiteral("OrvTextEditor"));
    d->editor = new OrvTextEditor2(this);
    d->editor->setObjectName(QStringLiteral("editor"));

    // One row: the essential actions only. The others stay on the editor, so their
    // shortcuts keep working.
    QToolBar* bar = d->editor->toolBar();
    QList<QAction*> row;
    for (const OrvTextEditor2::Action a : kRowActions)
        row << d->editor->action(a);
    for (QAction* action : bar->actions()) {
        if (!row.contains(action))
            bar->removeAction(action);
    }
    bar->insertSeparator(d->editor->action(OrvTextEditor2::BulletList));

    d->counter = new QLabel(this);
    d->counter->setObjectName(QStringLiteral("lbCounter"));
    d->counter->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->counter->setTextFormat(Qt::PlainText);
    d->counter->hide();

    d->warning = new QTimer(this);
    d->warning->setSingleShot(true);
    d->warning->setInterval(kWarningMs);
    connect(d->warning, &QTimer::timeout, this, [this] {
        d->counter->setPalette(QPalette());
        d->counter->setToolTip(QString());
    });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(d->editor);
    layout->addWidget(d->counter);
    setFocusProxy(d->editor);

    QTextEdit* edit = d->editor->textEdit();
    edit->setTabChangesFocus(true);
    connect(d->document(), &QTextDocument::contentsChange, this, [this](int position, int, int added) {
        d->lastPosition = position;
        d->lastAdded = added;
    });
    connect(edit, &QTextEdit::textChanged, this, [this] {
        if (d->trimming)
            return;
        const int excess = d->maximum > 0 ? d->length() - d->maximum : 0;
        if (excess > 0) {
            // Whatever brought the text over the limit (keys, paste, drop, a program):
            // the end of what came in last is cut, inside the same undo step.
            d->trimming = true;
            QTextCursor cursor(d->document());
            cursor.joinPreviousEditBlock();
            const int end = qMin(d->lastPosition + d->lastAdded, d->length());
            const int from = qMax(qMin(d->lastPosition, end), end - excess);
            cursor.setPosition(from);
            cursor.setPosition(end, QTextCursor::KeepAnchor);
            cursor.removeSelectedText();
            if (d->length() > d->maximum) {
                // An insertion shorter than the excess (the limit was lowered): cut the end.
                cursor.setPosition(d->maximum);
                cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
                cursor.removeSelectedText();
            }
            cursor.endEditBlock();
            d->trimming = false;
            QTextCursor caret = d->editor->textEdit()->textCursor();
            if (caret.position() > from && from >= d->lastPosition) {
                caret.setPosition(from);
                d->editor->textEdit()->setTextCursor(caret);
            }
            const int limit = d->maximum;
            d->counter->setToolTip(tr("The text can have at most %n characters.", nullptr, limit));
            QPalette warned = d->counter->palette();
            warned.setColor(QPalette::WindowText, d->warningColor(this));
            d->counter->setPalette(warned);
            d->warning->start();
            QAccessibleEvent alert(d->counter, QAccessible::Alert);
            QAccessible::updateAccessibility(&alert);
            Q_EMIT limitReached();
        }
        d->updateCounter();
        Q_EMIT textChanged();
    });
    d->counter->setAccessibleName(tr("Characters used"));
}

OrvTextEditor::~OrvTextEditor() = default;

QString OrvTextEditor::html() const
{
    return d->editor->textEdit()->toHtml();
}

void OrvTextEditor::setHtml(const QString& html)
{
    if (d->plain)
        d->editor->textEdit()->setPlainText(QTextDocumentFragment::fromHtml(html).toPlainText());
    else
        d->editor->textEdit()->setHtml(html);
}

QString OrvTextEditor::plainText() const
{
    return d->editor->textEdit()->toPlainText();
}

void OrvTextEditor::setPlainText(const QString& text)
{
    d->editor->textEdit()->setPlainText(text);
}

QString OrvTextEditor::markdown() const
{
    return d->document()->toMarkdown();
}

void OrvTextEditor::setMarkdown(const QString& markdown)
{
    if (d->plain)
        d->editor->textEdit()->setPlainText(markdown);
    else
        d->editor->textEdit()->setMarkdown(markdown);
}

int OrvTextEditor::length() const
{
    return d->length();
}

int OrvTextEditor::maximumLength() const
{
    return d->maximum;
}

void OrvTextEditor::setMaximumLength(int length)
{
    length = qMax(0, length);
    if (length == d->maximum)
        return;
    d->maximum = length;
    d->counter->setVisible(length > 0);
    d->updateCounter();
    if (length > 0 && d->length() > length) {
        // Cut at once, as if the whole text had just come in.
        d->lastPosition = 0;
        d->lastAdded = d->length();
        Q_EMIT d->editor->textEdit()->textChanged();
    }
    Q_EMIT maximumLengthChanged(length);
}

bool OrvTextEditor::isPlainTextMode() const
{
    return d->plain;
}

void OrvTextEditor::setPlainTextMode(bool plain)
{
    if (plain == d->plain)
        return;
    d->plain = plain;
    QTextEdit* edit = d->editor->textEdit();
    edit->setAcceptRichText(!plain);
    for (QAction* action : d->formattingActions()) {
        if (plain)
            d->editor->removeAction(action);
        else
            d->editor->addAction(action);
    }
    d->editor->toolBar()->setVisible(!plain);
    if (plain)
        edit->setPlainText(edit->toPlainText());
    Q_EMIT plainTextModeChanged(plain);
}

bool OrvTextEditor::isReadOnly() const
{
    return d->editor->textEdit()->isReadOnly();
}

void OrvTextEditor::setReadOnly(bool readOnly)
{
    d->editor->textEdit()->setReadOnly(readOnly);
}

bool OrvTextEditor::load(const QString& fileName, QString* errorMessage)
{
    if (!d->editor->load(fileName, errorMessage))
        return false;
    if (d->plain)
        setPlainText(plainText());
    return true;
}

bool OrvTextEditor::save(const QString& fileName, OrvTextEditor2::Format format, QString* errorMessage) const
{
    return d->editor->save(fileName, format, errorMessage);
}

QTextEdit* OrvTextEditor::textEdit() const
{
    return d->editor->textEdit();
}

QToolBar* OrvTextEditor::toolBar() const
{
    return d->editor->toolBar();
}

QLabel* OrvTextEditor::counterLabel() const
{
    return d->counter;
}

void OrvTextEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        d->updateCounter();
}

} // namespace OrvWidgets
