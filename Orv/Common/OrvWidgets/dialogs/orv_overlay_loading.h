#pragma once

#include "orvwidgets_export.h"

#include <QWidget>

namespace Ui {
class OrvOverlayLoading;
}

namespace OrvWidgets {

/// A small loading panel with an optional, one-shot Cancel button; shown over a
/// page through the page's overlay.
class ORVWIDGETS_EXPORT OrvOverlayLoading : public QWidget
{
    Q_OBJECT
public:
    /*! A loading panel ("Loading ...") with a busy bar; the Cancel button is hidden until
        setCancelButtonVisible(). */
    explicit OrvOverlayLoading(QWidget* parent);
    ~OrvOverlayLoading() override;

    /*! Replaces the text; it is then kept over a language switch. */
    void setText(const QString& text);
    /*! The text shown. */
    QString text() const;
    /*! Shows or hides the Cancel button. */
    void setCancelButtonVisible(bool visible);
    /*! Enables the Cancel button again after it was pressed (it disables itself on the first
        click). */
    void setCancelButtonEnabled(bool enabled);

Q_SIGNALS:
    /*! Emitted once when the user presses Cancel; the button then disables itself. */
    void cancel();

protected:
    /*! \reimp */
    void changeEvent(QEvent* event) override;

private:
    Ui::OrvOverlayLoading* m_ui;
    bool m_customText = false;
};

} // namespace OrvWidgets
