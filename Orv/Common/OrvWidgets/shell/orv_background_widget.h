#pragma once

#include "orvwidgets_export.h"

#include <QDialog>
#include <QPixmap>

namespace OrvWidgets {

// A full-screen window behind the application that shows the project's
// background image and reports any operator activity on it.
class ORVWIDGETS_EXPORT OrvBackgroundWidget : public QDialog
{
    Q_OBJECT
public:
    explicit OrvBackgroundWidget(QWidget* parent);
    ~OrvBackgroundWidget() override;

    void showFullScreen();
    const QPixmap& background() const { return m_pixmap; }
    bool isUltraWide() const { return m_isUltraWide; }

Q_SIGNALS:
    void signalOperatorAction();

protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void setBackground();
    void setUltraWide(bool ultraWide);

    QPixmap m_pixmap;
    bool m_isUltraWide = false;
};

} // namespace OrvWidgets
