#include "orv_info_dialog.h"
#include "orv_logging_p.h"

#include "orv_version.h"
#include "ui_orv_info_dialog.h"

#include <QFile>
#include <QLoggingCategory>
#include <QPixmap>

namespace OrvWidgets {

OrvInfoDialog::OrvInfoDialog(QWidget* parent)
    : OrvFramelessDialog(parent, Modal)
    , m_ui(new Ui::OrvInfoDialog)
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);

    QFont bold = font();
    bold.setBold(true);
    m_ui->lblVersion->setFont(bold);
    m_ui->lblDate->setFont(bold);
    m_ui->lblVersion->setText(versionText());
    m_ui->lblDate->setText(QStringLiteral(ORV_BUILD_DATE));

    const QString logoPath = QFile::exists(QStringLiteral(":project/login_logo.png"))
                                 ? QStringLiteral(":project/login_logo.png")
                                 : QStringLiteral(":/project/logo.png");
    const QPixmap logo(logoPath);
    if (logo.isNull()) {
        qCWarning(lcDialogs) << "OrvInfoDialog: project logo missing or is not an valid image ";
    } else {
        const int height = int(m_ui->lblProjectLogo->maximumHeight() * 0.85);
        m_ui->lblProjectLogo->setPixmap(
            logo.scaled(999, height, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
    connect(m_ui->pbClose, &QPushButton::clicked, this, &QDialog::accept);
}

OrvInfoDialog::~OrvInfoDialog()
{
    delete m_ui;
}

QString OrvInfoDialog::versionText()
{
    return QStringLiteral("%1.%2-%3 (rev: %4)")
        .arg(QStringLiteral(ORV_VERSION_MAJOR), QStringLiteral(ORV_VERSION_MINOR),
             QStringLiteral(ORV_BUILD_REVISION), QStringLiteral(ORV_VERSION_PATCH));
}

void OrvInfoDialog::changeEvent(QEvent* event)
{
    OrvFramelessDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void OrvInfoDialog::retranslate()
{
    m_ui->retranslateUi(this);
}

} // namespace OrvWidgets
