#include "orv_notification_box.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyleOption>
#include <QToolButton>
#include <QVBoxLayout>

// The box's form: object names are used by its style sheet.
class Ui_NotiBox
{
public:
    QHBoxLayout* horizontalLayout_2 = nullptr;
    QLabel* lblImage = nullptr;
    QLabel* lblText = nullptr;
    QVBoxLayout* verticalLayout = nullptr;
    QHBoxLayout* horizontalLayout = nullptr;
    QToolButton* tbAck = nullptr;
    QToolButton* tbClose = nullptr;
    QSpacerItem* verticalSpacer = nullptr;

    void setupUi(QWidget* box)
    {
        box->setObjectName(QStringLiteral("NotiBox"));
        box->setMinimumSize(670, 130);
        box->setMaximumSize(670, 130);
        box->resize(670, 130);
        horizontalLayout_2 = new QHBoxLayout(box);
        horizontalLayout_2->setObjectName(QStringLiteral("horizontalLayout_2"));
        horizontalLayout_2->setContentsMargins(40, 18, 18, 18);
        lblImage = new QLabel(box);
        lblImage->setObjectName(QStringLiteral("lblImage"));
        lblImage->setFixedSize(50, 50);
        lblImage->setScaledContents(true);
        horizontalLayout_2->addWidget(lblImage);
        lblText = new QLabel(box);
        lblText->setObjectName(QStringLiteral("lblText"));
        lblText->setWordWrap(false);
        lblText->setOpenExternalLinks(false);
        lblText->setTextFormat(Qt::RichText);
        horizontalLayout_2->addWidget(lblText, 1);
        verticalLayout = new QVBoxLayout;
        verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
        horizontalLayout = new QHBoxLayout;
        horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
        horizontalLayout->setContentsMargins(-1, 0, -1, -1);
        tbAck = new QToolButton(box);
        tbAck->setObjectName(QStringLiteral("tbAck"));
        tbAck->setMaximumSize(20, 20);
        tbClose = new QToolButton(box);
        tbClose->setObjectName(QStringLiteral("tbClose"));
        tbClose->setMaximumSize(20, 20);
        horizontalLayout->addWidget(tbAck);
        horizontalLayout->addWidget(tbClose);
        verticalLayout->addLayout(horizontalLayout);
        verticalSpacer = new QSpacerItem(20, 40, QSizePolicy::Minimum, QSizePolicy::Expanding);
        verticalLayout->addItem(verticalSpacer);
        horizontalLayout_2->addLayout(verticalLayout);
        retranslateUi(box);
    }

    void retranslateUi(QWidget* box)
    {
        box->setWindowTitle(QCoreApplication::translate("NotiBox", "Notification"));
        tbAck->setToolTip(QCoreApplication::translate("NotiBox", "Acknowledge"));
        tbClose->setToolTip(QCoreApplication::translate("NotiBox", "Close"));
    }
};

namespace OrvWidgets {

namespace {
struct Scheme
{
    QColor start;
    QColor end;
    const char* icon;
    const char* close;
    const char* closeHover;
    const char* ack;
    const char* ackHover;
    const char* text;
};

const Scheme& schemeFor(OrvNotificationBox::MessageType type)
{
    static const Scheme success{QColor(43, 167, 70), QColor(130, 180, 45), ":/success.svg", "close.svg",
                                "close_dark.svg", "ack.svg", "ack_dark.svg", "fbfbfb"};
    static const Scheme error{QColor(254, 45, 102), QColor(255, 92, 61), ":/error.svg", "close.svg",
                              "close_dark.svg", "ack.svg", "ack_dark.svg", "fbfbfb"};
    static const Scheme warning{QColor(253, 151, 4), QColor(253, 202, 0), ":/warning.svg", "close_dark.svg",
                                "close.svg", "ack_dark.svg", "ack.svg", "2c3642"};
    static const Scheme info{QColor(74, 74, 74), QColor(43, 43, 43), ":/info.svg", "close.svg", "close_dark.svg",
                             "ack.svg", "ack_dark.svg", "fbfbfb"};
    switch (type) {
    case OrvNotificationBox::Success:
        return success;
    case OrvNotificationBox::Error:
        return error;
    case OrvNotificationBox::Warning:
        return warning;
    case OrvNotificationBox::Info:
        break;
    }
    return info;
}

QString rgb(const QColor& c)
{
    return QStringLiteral("%1, %2, %3").arg(c.red()).arg(c.green()).arg(c.blue());
}
} // namespace

OrvNotificationBox::OrvNotificationBox(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui_NotiBox)
{
    m_ui->setupUi(this);
    m_ui->lblText->clear();
    connect(m_ui->lblText, &QLabel::linkActivated, this, &OrvNotificationBox::signalLinkClicked);
    connect(m_ui->tbClose, &QToolButton::clicked, this, &OrvNotificationBox::signalClose);
    connect(m_ui->tbAck, &QToolButton::clicked, this, &OrvNotificationBox::signalAck);
    setObjectName(QStringLiteral("NotiBox"));
    auto* shadow = new QGraphicsDropShadowEffect(this);
    shadow->setOffset(0, 0);
    shadow->setBlurRadius(28);
    shadow->setColor(QColor(25, 25, 25, 255));
    setGraphicsEffect(shadow);
    setAccessibleName(tr("Notification"));
}

OrvNotificationBox::~OrvNotificationBox()
{
    delete m_ui;
}

void OrvNotificationBox::message(const QString& title, const QString& text, MessageType type)
{
    const Scheme& scheme = schemeFor(type);
    m_ui->lblImage->setPixmap(QIcon(QLatin1String(scheme.icon)).pixmap(QSize(50, 50), devicePixelRatioF()));

    const QString box = QStringLiteral("#NotiBox { background: qlineargradient(x1:0, y1:0, x2:1, y2:1, stop: 0 "
                                       "rgb(%1), stop: 1 rgb(%2)); border: 1px solid rgb(%3); border-radius: 8px; "
                                       "margin: %4px }")
                            .arg(rgb(scheme.start), rgb(scheme.end), rgb(scheme.end))
                            .arg(14);
    const QString button = QStringLiteral(
        "%1 { border-image: url(:/%2) 0 0 0 0 stretch stretch; border-width: 0px; background-color: transparent; }");
    setStyleSheet(box + button.arg(QStringLiteral("QToolButton#tbClose"), QLatin1String(scheme.close))
                  + button.arg(QStringLiteral("QToolButton#tbClose:hover"), QLatin1String(scheme.closeHover))
                  + button.arg(QStringLiteral("QToolButton#tbAck"), QLatin1String(scheme.ack))
                  + button.arg(QStringLiteral("QToolButton#tbAck:hover"), QLatin1String(scheme.ackHover)));

    m_ui->lblText->setText(QStringLiteral("<p><span style='font-size:14pt; font-weight:600; color:#%1;'>%2</span></p>"
                                          "<p><span style='font-size:14pt; color:#%3;'>%4</span></p>")
                               .arg(QLatin1String(scheme.text), title, QLatin1String(scheme.text), text));
    // Screen readers announce the message as it arrives.
    setAccessibleName(title);
    setAccessibleDescription(text);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void OrvNotificationBox::paintEvent(QPaintEvent*)
{
    // Lets the style sheet's gradient, border and rounded corners show.
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

} // namespace OrvWidgets
