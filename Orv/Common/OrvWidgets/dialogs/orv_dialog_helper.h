#pragma once

#include "orvwidgets_export.h"

#include <QPointer>
#include <QScrollBar>
#include <QWidget>

namespace Ui {
class OrvDialogHelper;
}

namespace OrvWidgets {

class OrvDialog;
class OrvDialogButtonBox;

// A scroll bar that reports its own visibility (the scroll area only shows
// and hides its container).
class ORVWIDGETS_EXPORT LDHScrollBar : public QScrollBar
{
    Q_OBJECT
public:
    explicit LDHScrollBar(Qt::Orientation orientation, QWidget* parent = nullptr);

Q_SIGNALS:
    void scrollbarVisiblityChanged(bool visible);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
};

// The frame of every page: the page in a scroll area, the standard button box
// below it. It carries the page's window title and deletes itself after the
// page is gone.
class ORVWIDGETS_EXPORT OrvDialogHelper : public QWidget
{
    Q_OBJECT
public:
    explicit OrvDialogHelper(QWidget* parent = nullptr);
    ~OrvDialogHelper() override;

    OrvDialogButtonBox* getButtonBox() const;
    // Only the first call has an effect.
    void setDialog(OrvDialog* dialog);
    OrvDialog* getDialog() const;
    bool compare(const OrvDialog* dialog) const;

    // Re-reads the page's texts without changing its unapplied-changes state.
    void retranslate();

Q_SIGNALS:
    void signalSizeChanged(const QSize& size);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void onHScrollBarVisibilityChanged(bool visible);
    void onVScrollBarVisibilityChanged(bool visible);

private:
    void resetPageMargins();
    void applyScrollBarMargins();

    Ui::OrvDialogHelper* m_ui = nullptr;
    QPointer<OrvDialog> m_dialog;
    bool m_hBarVisible = false;
    bool m_vBarVisible = false;
};

} // namespace OrvWidgets
