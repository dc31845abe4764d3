#include "orv_operator_menu.h"
#include "orv_logging_p.h"

#include "orv_info_dialog.h"

#include <dax_translation.h>

#include <QButtonGroup>
#include <QCoreApplication>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHostInfo>
#include <QLabel>
#include <QLoggingCategory>
#include <QProcess>
#include <QPushButton>
#include <QVBoxLayout>

namespace Ui {

// The menu's form; object names are part of the design.
class OrvOperatorMenu
{
public:
    QVBoxLayout* verticalLayout = nullptr;
    QLabel* lbOperatorName = nullptr;
    QLabel* lbHostName = nullptr;
    QLabel* lbWorkspaceId = nullptr;
    QFrame* line = nullptr;
    QPushButton* pbOperatorSettings = nullptr;
    QPushButton* pbWindow = nullptr;
    QFrame* line_2 = nullptr;
    QPushButton* pbSwap = nullptr;
    QPushButton* pbLogout = nullptr;
    QPushButton* pbExit = nullptr;
    QSpacerItem* verticalSpacer = nullptr;
    QPushButton* pbAbout = nullptr;
    QPushButton* pbCancel = nullptr;
    QWidget* debugWidget = nullptr;
    QFrame* line_3 = nullptr;
    QLabel* lbDebug = nullptr;
    QPushButton* pbGer = nullptr;
    QPushButton* pbInt = nullptr;

    void setupUi(QDialog* menu)
    {
        menu->setObjectName(QStringLiteral("OrvOperatorMenu"));
        menu->setMinimumWidth(280);
        verticalLayout = new QVBoxLayout(menu);
        verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
        verticalLayout->setContentsMargins(16, 14, 16, 14);
        verticalLayout->setSpacing(6);
        lbOperatorName = add(new QLabel(menu), "lbOperatorName");
        QFont bold = lbOperatorName->font();
        bold.setBold(true);
        bold.setPointSizeF(bold.pointSizeF() * 1.2);
        lbOperatorName->setFont(bold);
        lbHostName = add(new QLabel(menu), "lbHostName");
        lbWorkspaceId = add(new QLabel(menu), "lbWorkspaceId");
        line = add(hLine(menu), "line");
        pbOperatorSettings = add(new QPushButton(menu), "pbOperatorSettings");
        pbWindow = add(new QPushButton(menu), "pbWindow");
        line_2 = add(hLine(menu), "line_2");
        pbSwap = add(new QPushButton(menu), "pbSwap");
        pbLogout = add(new QPushButton(menu), "pbLogout");
        pbExit = add(new QPushButton(menu), "pbExit");
        verticalSpacer = new QSpacerItem(20, 12, QSizePolicy::Minimum, QSizePolicy::Expanding);
        verticalLayout->addItem(verticalSpacer);
        pbAbout = add(new QPushButton(menu), "pbAbout");
        pbCancel = add(new QPushButton(menu), "pbCancel");
        debugWidget = add(new QWidget(menu), "debugWidget");
        auto* debugLayout = new QVBoxLayout(debugWidget);
        debugLayout->setContentsMargins(0, 0, 0, 0);
        line_3 = new QFrame(debugWidget);
        line_3->setObjectName(QStringLiteral("line_3"));
        line_3->setFrameShape(QFrame::HLine);
        line_3->setFrameShadow(QFrame::Sunken);
        debugLayout->addWidget(line_3);
        auto* languages = new QHBoxLayout;
        lbDebug = new QLabel(debugWidget);
        lbDebug->setObjectName(QStringLiteral("lbDebug"));
        pbGer = new QPushButton(debugWidget);
        pbGer->setObjectName(QStringLiteral("pbGer"));
        pbInt = new QPushButton(debugWidget);
        pbInt->setObjectName(QStringLiteral("pbInt"));
        for (QPushButton* b : {pbGer, pbInt}) {
            b->setCheckable(true);
            b->setAutoExclusive(true);
        }
        pbGer->setIcon(QIcon(QStringLiteral(":/Germany-Flag.png")));
        pbInt->setIcon(QIcon(QStringLiteral(":/Great-Britain-Flag.png")));
        languages->addWidget(lbDebug);
        languages->addStretch(1);
        languages->addWidget(pbGer);
        languages->addWidget(pbInt);
        debugLayout->addLayout(languages);
        retranslateUi(menu);
    }

    void retranslateUi(QDialog* menu)
    {
        menu->setWindowTitle(QCoreApplication::translate("OrvOperatorMenu", "Operator"));
        pbOperatorSettings->setText(QCoreApplication::translate("OrvOperatorMenu", "Operator settings"));
        pbWindow->setText(QCoreApplication::translate("OrvOperatorMenu", "Terminal"));
        pbSwap->setText(QCoreApplication::translate("OrvOperatorMenu", "Swap screens"));
        pbLogout->setText(QCoreApplication::translate("OrvOperatorMenu", "Logout"));
        pbExit->setText(QCoreApplication::translate("OrvOperatorMenu", "Exit"));
        pbAbout->setText(QCoreApplication::translate("OrvOperatorMenu", "About"));
        pbCancel->setText(QCoreApplication::translate("OrvOperatorMenu", "Cancel"));
        lbDebug->setText(QCoreApplication::translate("OrvOperatorMenu", "Language"));
        pbGer->setText(QStringLiteral("Deutsch"));
        pbInt->setText(QStringLiteral("English"));
    }

private:
    template <typename T> T* add(T* widget, const char* name)
    {
        widget->setObjectName(QLatin1String(name));
        verticalLayout->addWidget(widget);
        return widget;
    }
    static QFrame* hLine(QWidget* parent)
    {
        auto* frame = new QFrame(parent);
        frame->setFrameShape(QFrame::HLine);
        frame->setFrameShadow(QFrame::Sunken);
        return frame;
    }
};

} // namespace Ui

namespace OrvWidgets {

OrvOperatorMenu::OrvOperatorMenu(const QString& operatorName, const QString& workspaceId, bool showWorkspace,
                                 int screenCount, QWidget* parent)
    : OrvFramelessDialog(parent, Popup)
    , m_ui(new Ui::OrvOperatorMenu)
    , m_workspaceId(workspaceId)
{
    m_ui->setupUi(this);
    m_ui->lbOperatorName->setText(operatorName);
    retranslate();
    if (screenCount < 2)
        m_ui->pbSwap->hide();
    m_ui->lbWorkspaceId->setVisible(showWorkspace);

    connect(m_ui->pbOperatorSettings, &QPushButton::clicked, this, [this] {
        Q_EMIT signalShowOperatorSettings();
        close();
    });
    connect(m_ui->pbWindow, &QPushButton::clicked, this, [this] {
        onTerminalButtonClicked();
        close();
    });
    connect(m_ui->pbLogout, &QPushButton::clicked, this, [this] {
        close();
        Q_EMIT signalLogout();
    });
    connect(m_ui->pbExit, &QPushButton::clicked, this, [this] {
        close();
        Q_EMIT signalExit();
    });
    connect(m_ui->pbSwap, &QPushButton::clicked, this, [this] {
        close();
        Q_EMIT signalSwap();
    });
    connect(m_ui->pbAbout, &QPushButton::clicked, this, [this] {
        close();
        slotShowInfoDialog();
    });
    connect(m_ui->pbCancel, &QPushButton::clicked, this, &QDialog::close);

    const bool german = Dax::translationLocale() == "de_DE";
    m_ui->pbGer->setChecked(german);
    m_ui->pbInt->setChecked(!german);
    connect(m_ui->pbGer, &QPushButton::clicked, this, &OrvOperatorMenu::onLanguageChange);
    connect(m_ui->pbInt, &QPushButton::clicked, this, &OrvOperatorMenu::onLanguageChange);
}

OrvOperatorMenu::~OrvOperatorMenu()
{
    delete m_ui;
}

void OrvOperatorMenu::setTerminalButton(bool visible)
{
    m_ui->pbWindow->setVisible(visible);
}

void OrvOperatorMenu::setOperatorSettingsButton(bool visible)
{
    m_ui->pbOperatorSettings->setVisible(visible);
}

QString OrvOperatorMenu::terminalProgram(Qt::KeyboardModifiers modifiers)
{
    return modifiers == Qt::ControlModifier ? QStringLiteral("xterm") : QStringLiteral("konsole");
}

void OrvOperatorMenu::onTerminalButtonClicked()
{
    QProcess process;
    process.setProgram(terminalProgram(QGuiApplication::queryKeyboardModifiers()));
    process.setArguments({QStringLiteral("--geometry"), QStringLiteral("800x800+200+100")});
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANG"), QString::fromLatin1(Dax::translationLocale()) + QStringLiteral(".UTF-8"));
    process.setProcessEnvironment(environment);
    if (!process.startDetached())
        qCWarning(lcShell) << "OrvOperatorMenu: cannot start terminal" << process.program();
}

void OrvOperatorMenu::onLanguageChange()
{
    if (m_ui->pbGer->isChecked())
        Dax::setTranslationLocale("de_DE", QStringLiteral("qeb"));
    else if (m_ui->pbInt->isChecked())
        Dax::setTranslationLocale("en_GB", QStringLiteral("qeb"));
}

void OrvOperatorMenu::slotShowInfoDialog()
{
    (new OrvInfoDialog(nullptr))->show();
}

void OrvOperatorMenu::changeEvent(QEvent* event)
{
    OrvFramelessDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslate();
    }
}

void OrvOperatorMenu::retranslate()
{
    m_ui->lbHostName->setText(tr("Host: %1").arg(QHostInfo::localHostName()));
    m_ui->lbWorkspaceId->setText(tr("Workspace: >>>%1<<<").arg(m_workspaceId));
}

} // namespace OrvWidgets
