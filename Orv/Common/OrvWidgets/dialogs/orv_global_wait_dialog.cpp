#include "orv_global_wait_dialog.h"

#include <QCoreApplication>

namespace OrvWidgets {

namespace {
OrvGlobalWaitDialog* s_instance = nullptr;
}

OrvGlobalWaitDialog* OrvGlobalWaitDialog::getInstance()
{
    if (!s_instance) {
        s_instance = new OrvGlobalWaitDialog;
        qAddPostRoutine(&OrvGlobalWaitDialog::cleanup);
    }
    return s_instance;
}

void OrvGlobalWaitDialog::cleanup()
{
    delete s_instance;
    s_instance = nullptr;
}

OrvGlobalWaitDialog::OrvGlobalWaitDialog()
    : m_progressDialog(new OrvProgressDialogHelper(nullptr))
    , m_hideTimer(new QTimer(this))
{
    m_hideTimer->setSingleShot(true);
    m_hideTimer->setInterval(500);
    connect(m_hideTimer, &QTimer::timeout, this, &OrvGlobalWaitDialog::hideIt);
}

OrvGlobalWaitDialog::~OrvGlobalWaitDialog()
{
    delete m_progressDialog;
}

void OrvGlobalWaitDialog::wait(QWidget* parent, const QString& text)
{
    m_progressDialog->setParentWidget(parent);
    // A wait during the hiding phase keeps the window that is still shown.
    m_hideTimer->stop();
    if (m_waitingCount == 0 && m_visible)
        showIt();
    m_progressDialog->setCustomText(text);
    ++m_waitingCount;
}

void OrvGlobalWaitDialog::wait(const QString& text)
{
    wait(nullptr, text);
}

void OrvGlobalWaitDialog::done()
{
    if (m_waitingCount == 0)
        return;
    Q_ASSERT_X(m_waitingCount > 0, "OrvGlobalWaitDialog::done", "m_waitingCount > 0");
    if (--m_waitingCount == 0)
        m_hideTimer->start();
}

void OrvGlobalWaitDialog::setVisible(bool visible)
{
    m_visible = visible;
    if (visible && m_waitingCount > 0)
        showIt();
    else if (!visible && m_waitingCount == 0)
        hideIt();
}

void OrvGlobalWaitDialog::setCustomText(const QString& text)
{
    m_progressDialog->setCustomText(text);
}

void OrvGlobalWaitDialog::unarm()
{
    m_armed = false;
    hideIt();
}

void OrvGlobalWaitDialog::rearm()
{
    m_armed = true;
    setVisible(true);
}

void OrvGlobalWaitDialog::showIt()
{
    if (m_progressDialog->isShown())
        return;
    m_hideTimer->stop();
    if (m_armed)
        m_progressDialog->slotShowWaitForReplyWindow();
}

void OrvGlobalWaitDialog::hideIt()
{
    if (!m_progressDialog->isShown())
        return;
    m_hideTimer->stop();
    m_progressDialog->slotStopWaitForReplyWindow(OrvProgressDialogHelper::Close);
}

} // namespace OrvWidgets
