#include "orv_frameless_dialog.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScroller>
#include <QStyle>
#include <QTimer>

namespace OrvWidgets {

OrvFramelessDialog::OrvFramelessDialog(QWidget* parent, const Behaviour& behaviour)
    : QDialog(parent)
{
    if (behaviour == Popup) {
        setWindowFlags(Qt::Popup);
    } else {
        setModal(true);
        setWindowFlags(Qt::Dialog | Qt::WindowStaysOnTopHint);
    }
    setObjectName(QStringLiteral("OrvFramelessDialog"));

    // Created and connected only; applications may start it to follow the pointer
    // across screens. Centring normally happens through onUpdateGeometry().
    m_centreTimer = new QTimer(this);
    m_centreTimer->setInterval(250);
    connect(m_centreTimer, &QTimer::timeout, this, &OrvFramelessDialog::centreOnScreenUnderCursor);
}

OrvFramelessDialog::~OrvFramelessDialog() = default;

void OrvFramelessDialog::centreOnScreenUnderCursor()
{
    const QRect screen = screenRectFromPoint(QCursor::pos());
    if (screen.isEmpty())
        return;
    setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size(), screen));
}

QRect OrvFramelessDialog::screenRectFromPoint(const QPoint& point)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        const QRect geometry = screen->geometry();
        if (geometry.adjusted(-50, -50, 50, 50).contains(point))
            return geometry;
    }
    return QRect();
}

void OrvFramelessDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // The layout sets the final size only after the show; centre on the next turn.
    QTimer::singleShot(0, this, &OrvFramelessDialog::onUpdateGeometry);
}

void OrvFramelessDialog::onUpdateGeometry()
{
    QRect reference;
    if (QWidget* parent = parentWidget()) {
        QWidget* top = parent->window();
        reference = QRect(top->mapToGlobal(QPoint(0, 0)), top->size());
    } else if (QScreen* primary = QGuiApplication::primaryScreen()) {
        reference = primary->geometry();
    }
    if (!reference.isValid())
        return;
    move(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size(), reference).topLeft());
}

void OrvFramelessDialog::addTouchScroll(QWidget* widget)
{
    if (!widget)
        return;
    widget->setAttribute(Qt::WA_AcceptTouchEvents);
    if (auto* area = qobject_cast<QScrollArea*>(widget))
        QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
}

} // namespace OrvWidgets
