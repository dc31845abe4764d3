#pragma once

#include "orv_progress_dialog_helper.h"

#include <QTimer>

namespace OrvWidgets {

// One process-wide, counted wait indicator: shown when the first wait starts,
// hidden 500 ms after the last one ends so that back-to-back waits do not flicker.
class ORVWIDGETS_EXPORT OrvGlobalWaitDialog : public QObject
{
    Q_OBJECT
public:
    static OrvGlobalWaitDialog* getInstance();

    void wait(QWidget* parent, const QString& text);
    void wait(const QString& text);
    void done();
    void setVisible(bool visible);
    void setCustomText(const QString& text);
    void unarm();
    void rearm();

    int waitingCount() const { return m_waitingCount; }
    bool isArmed() const { return m_armed; }
    bool isVisible() const { return m_visible; }
    // The window is on screen (busy, or still shown during the hiding phase).
    bool isShown() const { return m_progressDialog->isShown(); }
    OrvProgressDialogHelper* progressDialog() const { return m_progressDialog; }

private:
    OrvGlobalWaitDialog();
    ~OrvGlobalWaitDialog() override;
    static void cleanup();
    void showIt();
    void hideIt();

    int m_waitingCount = 0;
    bool m_visible = true;
    bool m_armed = true;
    OrvProgressDialogHelper* m_progressDialog;
    QTimer* m_hideTimer;
};

} // namespace OrvWidgets
