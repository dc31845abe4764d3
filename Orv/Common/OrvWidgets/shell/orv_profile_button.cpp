#include "orv_profile_button.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>

namespace OrvWidgets {

OrvProfileButton::OrvProfileButton(QWidget* parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setPixmap(QPixmap());
}

OrvProfileButton::~OrvProfileButton() = default;

void OrvProfileButton::setPixmap(const QPixmap& pixmap)
{
    if (pixmap.isNull()) {
        // Rendered large once; painting scales it down smoothly at any ratio.
        m_pixmap = QIcon(QStringLiteral("icon:no_pic.svg")).pixmap(QSize(192, 192));
    } else {
        m_pixmap = pixmap;
    }
    update();
}

void OrvProfileButton::setMenuEnabled(bool enabled)
{
    m_menuEnabled = enabled;
}

bool OrvProfileButton::event(QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && m_menuEnabled) {
        Q_EMIT signalClicked();
        event->accept();
        update();
        return true;
    }
    return QWidget::event(event);
}

void OrvProfileButton::enterEvent(QEnterEvent* event)
{
    m_isHovered = true;
    update();
    QWidget::enterEvent(event);
}

void OrvProfileButton::leaveEvent(QEvent* event)
{
    m_isHovered = false;
    update();
    QWidget::leaveEvent(event);
}

void OrvProfileButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const qreal pen = m_isHovered ? 3.0 : 2.0;
    const QRectF circle = QRectF(rect()).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
    QPainterPath clip;
    clip.addEllipse(circle);
    painter.save();
    painter.setClipPath(clip);
    if (!m_pixmap.isNull())
        painter.drawPixmap(circle, m_pixmap, QRectF(m_pixmap.rect()));
    if (m_isHovered)
        painter.fillPath(clip, QColor(255, 255, 255, 40));
    painter.restore();
    painter.setPen(QPen(m_isHovered ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid), pen));
    painter.drawEllipse(circle);
}

} // namespace OrvWidgets
