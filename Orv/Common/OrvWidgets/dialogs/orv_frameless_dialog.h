#pragma once

#include "orvwidgets_export.h"

#include <QDialog>
#include <QRect>

class QTimer;

namespace OrvWidgets {

// Top-level popup or modal dialog that centres itself over its parent's window
// (or the primary screen) once the layout has given it its size.
class ORVWIDGETS_EXPORT OrvFramelessDialog : public QDialog
{
    Q_OBJECT
public:
    enum Behaviour { Popup = 0, Modal = 1 };
    Q_ENUM(Behaviour)

    OrvFramelessDialog(QWidget* parent, const Behaviour& behaviour);
    ~OrvFramelessDialog() override;

public Q_SLOTS:
    void onUpdateGeometry();

protected:
    void showEvent(QShowEvent* event) override;

private:
    friend class OrvFramelessDialogTest;
    static QRect screenRectFromPoint(const QPoint& point);
    void addTouchScroll(QWidget* widget);
    void centreOnScreenUnderCursor();

    QTimer* m_centreTimer = nullptr;
};

} // namespace OrvWidgets
