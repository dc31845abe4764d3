#include "orv_dialog_helper.h"

#include "orv_dialog.h"
#include "ui_orv_dialog_helper.h"

#include <QEvent>
#include <QLayout>
#include <QResizeEvent>

namespace OrvWidgets {

LDHScrollBar::LDHScrollBar(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent)
{
}

void LDHScrollBar::showEvent(QShowEvent* event)
{
    QScrollBar::showEvent(event);
    Q_EMIT scrollbarVisiblityChanged(true);
}

void LDHScrollBar::hideEvent(QHideEvent* event)
{
    QScrollBar::hideEvent(event);
    Q_EMIT scrollbarVisiblityChanged(false);
}

OrvDialogHelper::OrvDialogHelper(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::OrvDialogHelper)
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);

    auto* hBar = new LDHScrollBar(Qt::Horizontal, this);
    auto* vBar = new LDHScrollBar(Qt::Vertical, this);
    connect(hBar, &LDHScrollBar::scrollbarVisiblityChanged, this, &OrvDialogHelper::onHScrollBarVisibilityChanged);
    connect(vBar, &LDHScrollBar::scrollbarVisiblityChanged, this, &OrvDialogHelper::onVScrollBarVisibilityChanged);
    m_ui->scrollArea->setHorizontalScrollBar(hBar);
    m_ui->scrollArea->setVerticalScrollBar(vBar);

    m_ui->buttonBox->setMinimumHeight(m_ui->buttonBox->sizeHint().height());
}

OrvDialogHelper::~OrvDialogHelper()
{
    // Take the page down while the frame is still whole, so the page's own
    // destructor never sees a half-destroyed frame.
    if (m_dialog) {
        disconnect(m_dialog, nullptr, this, nullptr);
        // Only a page still inside the frame goes with it; one that was taken out
        // (re-parented elsewhere) belongs to its new parent now.
        if (isAncestorOf(m_dialog))
            delete m_dialog.data();
    }
    // Closing the window in the base destructor hides the scroll bars; their
    // reports must not reach the frame any more.
    disconnect(m_ui->scrollArea->horizontalScrollBar(), nullptr, this, nullptr);
    disconnect(m_ui->scrollArea->verticalScrollBar(), nullptr, this, nullptr);
    delete m_ui;
}

OrvDialogButtonBox* OrvDialogHelper::getButtonBox() const
{
    return m_ui->buttonBox;
}

void OrvDialogHelper::setDialog(OrvDialog* dialog)
{
    if (m_dialog || !dialog)
        return;
    m_dialog = dialog;
    resetPageMargins();
    m_ui->scrollArea->setWidget(dialog);
    connect(dialog, &QObject::destroyed, this, &QObject::deleteLater);
}

OrvDialog* OrvDialogHelper::getDialog() const
{
    return m_dialog.data();
}

bool OrvDialogHelper::compare(const OrvDialog* dialog) const
{
    return dialog && m_dialog.data() == dialog;
}

void OrvDialogHelper::resetPageMargins()
{
    m_dialog->setContentsMargins(0, 0, 0, 0);
    if (QLayout* layout = m_dialog->layout())
        layout->setContentsMargins(0, 0, 0, 0);
}

void OrvDialogHelper::retranslate()
{
    if (!m_dialog)
        return;
    resetPageMargins();
    const bool hadChanges = m_dialog->m_changesMade;
    m_dialog->retranslate();
    if (!m_dialog)
        return;
    if (hadChanges)
        m_dialog->slotChangesMade();
    else
        m_dialog->resetChanges();
}

void OrvDialogHelper::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Q_EMIT signalSizeChanged(event->size());
}

void OrvDialogHelper::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

// A visible bar lets the page's content reach one pixel under it (-1); a
// hidden one gives the page its full size back (0). The layout reports
// resolved margins, so the two edges are kept here rather than read back.
void OrvDialogHelper::onHScrollBarVisibilityChanged(bool visible)
{
    m_hBarVisible = visible;
    applyScrollBarMargins();
}

void OrvDialogHelper::onVScrollBarVisibilityChanged(bool visible)
{
    m_vBarVisible = visible;
    applyScrollBarMargins();
}

void OrvDialogHelper::applyScrollBarMargins()
{
    if (QLayout* layout = m_dialog ? m_dialog->layout() : nullptr)
        layout->setContentsMargins(0, 0, m_vBarVisible ? -1 : 0, m_hBarVisible ? -1 : 0);
}

} // namespace OrvWidgets
