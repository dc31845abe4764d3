#pragma once

// Runs code inside a real drag started from a drag icon, so that drag events
// built by the test report that icon's button as their source. Drag events
// name their source only while a drag runs, hence these tests need X.

#include <orv_drag_icon.h>

#include <QCoreApplication>
#include <QDrag>
#include <QMimeData>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QIcon>
#include <QObject>
#include <QPixmap>
#include <QTimer>

#include <functional>

namespace OrvTest {

inline QIcon filledIcon(const QColor& color)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(color);
    return QIcon(pixmap);
}

inline void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& pos, Qt::MouseButton button,
                      Qt::MouseButtons buttons)
{
    QMouseEvent event(type, QPointF(pos), QPointF(widget->mapToGlobal(pos)), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

// Starts a drag with `start`; if one runs, `during` runs inside it and the drag
// is cancelled with Escape sent to `source` afterwards. Returns whether `during` ran.
inline bool inDrag(QWidget* source, const std::function<void()>& start, const std::function<void()>& during)
{
    bool ran = false;
    QObject context; // cancels the timer when no drag started
    QTimer::singleShot(0, &context, [&] {
        during();
        ran = true;
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(source, &escape);
    });
    start();
    return ran;
}

// Presses the left button at `from` on the icon's button and moves it to `to`.
inline bool pressAndMove(OrvWidgets::OrvDragIcon* icon, const QPoint& from, const QPoint& to,
                         const std::function<void()>& during)
{
    QWidget* button = icon->toolButton();
    return inDrag(button, [&] {
        sendMouse(button, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        sendMouse(button, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    }, during);
}

inline bool duringDrag(OrvWidgets::OrvDragIcon* icon, const std::function<void()>& during)
{
    const bool ran = pressAndMove(icon, QPoint(5, 5), QPoint(20, 5), during);
    if (icon->toolButton())
        sendMouse(icon->toolButton(), QEvent::MouseButtonRelease, QPoint(20, 5), Qt::LeftButton, Qt::NoButton);
    return ran;
}

// Runs `during` inside a drag owned by an arbitrary widget, then cancels it.
inline bool duringForeignDrag(QWidget* source, const std::function<void()>& during)
{
    return inDrag(source, [source] {
        QDrag drag(source);
        auto* mime = new QMimeData;
        mime->setText(QStringLiteral("foreign"));
        drag.setMimeData(mime);
        drag.exec(Qt::CopyAction | Qt::MoveAction);
    }, during);
}

} // namespace OrvTest
