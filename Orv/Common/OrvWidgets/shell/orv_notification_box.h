#pragma once

#include "orvwidgets_export.h"

#include <QPainterPath>
#include <QWidget>

class Ui_NotiBox;

namespace OrvWidgets {

// The floating box that shows one notification in the shell's corner.
class ORVWIDGETS_EXPORT OrvNotificationBox : public QWidget
{
    Q_OBJECT
public:
    enum MessageType { Success = 0, Error = 1, Warning = 2, Info = 3 };
    Q_ENUM(MessageType)

    explicit OrvNotificationBox(QWidget* parent);
    ~OrvNotificationBox() override;

    // Restyles the box for the type, fills it and shows it.
    void message(const QString& title, const QString& text, MessageType type);

Q_SIGNALS:
    void signalClose();
    void signalAck();
    void signalLinkClicked(const QString& link);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Ui_NotiBox* m_ui;
    QPainterPath roundRectPath;
};

} // namespace OrvWidgets
