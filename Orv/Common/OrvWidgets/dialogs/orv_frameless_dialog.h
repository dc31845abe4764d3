#pragma once

#include "orvwidgets_export.h"

#include <QDialog>
#include <QRect>

class QTimer;

namespace OrvWidgets {

/// Top-level popup or modal dialog that centres itself over its parent's window
/// (or the primary screen) once the layout has given it its size.
class ORVWIDGETS_EXPORT OrvFramelessDialog : public QDialog
{
    Q_OBJECT
public:
    /*! Popup (0) closes when the user clicks elsewhere; Modal (1) blocks its window until
        closed. */
    enum Behaviour { Popup = 0, Modal = 1 };
    Q_ENUM(Behaviour)

    /*! A frameless top-level dialog over \a parent (may be null: then over the screen under the
        cursor) with \a behaviour. */
    OrvFramelessDialog(QWidget* parent, const Behaviour& behaviour);
    ~OrvFramelessDialog() override;

public Q_SLOTS:
    /*! Recomputes size and position on the next event-loop turn, after the layout has settled;
        call it when the content or parent changed. */
    void onUpdateGeometry();

protected:
    /*! \reimp */
    void showEvent(QShowEvent* event) override;

private:
    friend class OrvFramelessDialogTest;
    static QRect screenRectFromPoint(const QPoint& point);
    void addTouchScroll(QWidget* widget);
    void centreOnScreenUnderCursor();

    QTimer* m_centreTimer = nullptr;
};

} // namespace OrvWidgets
