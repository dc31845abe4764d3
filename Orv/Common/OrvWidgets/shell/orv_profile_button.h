#pragma once

#include "orvwidgets_export.h"

#include <QPixmap>
#include <QWidget>

namespace OrvWidgets {

// The operator's round picture; a press opens the operator menu.
class ORVWIDGETS_EXPORT OrvProfileButton : public QWidget
{
    Q_OBJECT
public:
    explicit OrvProfileButton(QWidget* parent);
    ~OrvProfileButton() override;

    // A null pixmap shows the placeholder "icon:no_pic.svg".
    void setPixmap(const QPixmap& pixmap);
    const QPixmap& pixmap() const { return m_pixmap; }
    void setMenuEnabled(bool enabled);
    bool menuEnabled() const { return m_menuEnabled; }
    bool isHovered() const { return m_isHovered; }

    int heightForWidth(int width) const override { return width; }
    bool hasHeightForWidth() const override { return true; }
    QSize sizeHint() const override { return QSize(48, 48); }

Q_SIGNALS:
    void signalClicked();

protected:
    bool event(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_pixmap;
    bool m_isHovered = false;
    bool m_menuEnabled = true;
};

} // namespace OrvWidgets
