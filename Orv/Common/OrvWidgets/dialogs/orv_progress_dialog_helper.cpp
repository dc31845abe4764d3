#include "orv_progress_dialog_helper.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace OrvWidgets {

OrvProgressDialogHelper::OrvProgressDialogHelper(QWidget* parent)
    : QObject(parent)
    , m_parentWidget(parent)
{
}

OrvProgressDialogHelper::~OrvProgressDialogHelper()
{
    // A window on another parent would outlive us otherwise.
    if (m_waitDlg)
        m_waitDlg->deleteLater();
}

bool OrvProgressDialogHelper::isShown() const
{
    return !m_waitDlg.isNull();
}

void OrvProgressDialogHelper::setCustomText(const QString& text)
{
    if (!m_textLabel)
        return;
    m_textLabel->setText(text.isEmpty() ? tr("Waiting for server reply...") : text);
}

void OrvProgressDialogHelper::setParentWidget(QWidget* parent)
{
    if (m_parentWidget == parent)
        return;
    m_parentWidget = parent;
    if (!m_waitDlg)
        return;
    const bool visible = m_waitDlg->isVisible();
    m_waitDlg->setParent(parent, m_waitDlg->windowFlags());
    if (visible)
        m_waitDlg->show();
    QTimer::singleShot(0, m_waitDlg.data(), &OrvFramelessDialog::onUpdateGeometry);
}

void OrvProgressDialogHelper::slotShowWaitForReplyWindow()
{
    if (m_waitDlg)
        m_waitDlg->deleteLater();
    m_waitDlg = new OrvFramelessDialog(m_parentWidget, OrvFramelessDialog::Modal);
    m_waitDlg->setObjectName(QStringLiteral("OrvProgressDialogBusy"));
    auto* layout = new QHBoxLayout(m_waitDlg);
    layout->setContentsMargins(24, 18, 24, 18);
    layout->setSpacing(16);
    auto* bar = new QProgressBar(m_waitDlg);
    bar->setMaximum(0);
    bar->setValue(-1);
    bar->setMinimumWidth(120);
    bar->setTextVisible(false);
    layout->addWidget(bar);
    m_textLabel = new QLabel(m_waitDlg);
    m_textLabel->setObjectName(QStringLiteral("lblMessage"));
    layout->addWidget(m_textLabel);
    setCustomText(QString());
    m_waitDlg->show();
    m_waitDlg->raise();
}

void OrvProgressDialogHelper::slotStopWaitForReplyWindow(const ReplyResult& result, const QString& reason)
{
    if (!m_waitDlg)
        return;
    m_waitDlg->deleteLater();
    m_waitDlg = nullptr;

    QString text;
    switch (result) {
    case Close:
        return;
    case Success:
        text = tr("Operation was successful");
        break;
    case Failure:
        text = tr("Operation has failed!\nReason: '%1'").arg(reason);
        break;
    case TimeOut:
        text = tr("Operation has timed out and could not be processed! Please try again later");
        break;
    default:
        text = tr("Unknown result (%1)!").arg(int(result));
        break;
    }

    m_waitDlg = new OrvFramelessDialog(m_parentWidget, OrvFramelessDialog::Modal);
    m_waitDlg->setObjectName(QStringLiteral("OrvProgressDialogResult"));
    auto* layout = new QVBoxLayout(m_waitDlg);
    layout->setContentsMargins(24, 18, 24, 16);
    layout->setSpacing(14);
    auto* label = new QLabel(text, m_waitDlg);
    label->setObjectName(QStringLiteral("lblMessage"));
    label->setWordWrap(true);
    layout->addWidget(label);
    auto* ok = new QPushButton(tr("OK"), m_waitDlg);
    ok->setDefault(true);
    layout->addWidget(ok, 0, Qt::AlignRight);
    connect(ok, &QPushButton::clicked, this, &OrvProgressDialogHelper::accept);
    m_waitDlg->show();
    m_waitDlg->raise();
}

void OrvProgressDialogHelper::accept()
{
    if (m_waitDlg) {
        m_waitDlg->accept();
        m_waitDlg->deleteLater();
        m_waitDlg = nullptr;
    }
    Q_EMIT accepted();
}

} // namespace OrvWidgets
