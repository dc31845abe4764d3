#include "orv_background_widget.h"
#include "orv_logging_p.h"

#include <QCloseEvent>
#include <QFile>
#include <QLoggingCategory>
#include <QPainter>

namespace OrvWidgets {

OrvBackgroundWidget::OrvBackgroundWidget(QWidget* parent)
    : QDialog(parent)
{
    setMouseTracking(true);
    // Below every other window of the application and never holding the keyboard focus,
    // whatever the window manager does with a new full-screen window.
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint
                   | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowTitle(QStringLiteral("Splash"));
    setBackground();
}

OrvBackgroundWidget::~OrvBackgroundWidget() = default;

void OrvBackgroundWidget::showFullScreen()
{
    QDialog::showFullScreen();
    raise();
}

void OrvBackgroundWidget::setBackground()
{
    m_pixmap = QPixmap();
    const QStringList candidates =
        m_isUltraWide ? QStringList{QStringLiteral(":/project/background_wide.png"),
                                    QStringLiteral(":/project/background_wide.jpg")}
                      : QStringList{QStringLiteral(":/project/background.png"),
                                    QStringLiteral(":/project/background.jpg")};
    for (const QString& path : candidates) {
        if (QFile::exists(path) && m_pixmap.load(path))
            break;
        m_pixmap = QPixmap();
    }
    if (m_pixmap.isNull()) {
        if (m_isUltraWide) {
            m_isUltraWide = false;
            setBackground();
            return;
        }
        qCWarning(lcShell)
            << "BackgroundWidget::c_tor: file missing or is not a valid image ':/project/background.png'";
    }
    update();
}

void OrvBackgroundWidget::setUltraWide(bool ultraWide)
{
    if (m_isUltraWide == ultraWide)
        return;
    m_isUltraWide = ultraWide;
    setBackground();
}

void OrvBackgroundWidget::resizeEvent(QResizeEvent* event)
{
    setUltraWide(width() > 3000);
    QDialog::resizeEvent(event);
}

void OrvBackgroundWidget::paintEvent(QPaintEvent* event)
{
    if (!m_pixmap.isNull()) {
        QPainter painter(this);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRect(0, 0, width(), height()), m_pixmap);
    }
    QDialog::paintEvent(event);
}

void OrvBackgroundWidget::closeEvent(QCloseEvent* event)
{
    // The operator cannot close the background.
    event->ignore();
}

bool OrvBackgroundWidget::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        Q_EMIT signalOperatorAction();
        event->ignore();
        return true;
    default:
        return QDialog::event(event);
    }
}

} // namespace OrvWidgets
