#pragma once

#include "orvwidgets_export.h"

#include <QWidget>

namespace Ui {
class OrvOverlayLoading;
}

namespace OrvWidgets {

// A small loading panel with an optional, one-shot Cancel button; shown over a
// page through the page's overlay.
class ORVWIDGETS_EXPORT OrvOverlayLoading : public QWidget
{
    Q_OBJECT
public:
    explicit OrvOverlayLoading(QWidget* parent);
    ~OrvOverlayLoading() override;

    void setText(const QString& text);
    QString text() const;
    void setCancelButtonVisible(bool visible);
    void setCancelButtonEnabled(bool enabled);

Q_SIGNALS:
    void cancel();

protected:
    void changeEvent(QEvent* event) override;

private:
    Ui::OrvOverlayLoading* m_ui;
    bool m_customText = false;
};

} // namespace OrvWidgets
