#pragma once

#include "orv_progress_dialog_helper.h"

#include <QTimer>

namespace OrvWidgets {

/// One process-wide, counted wait indicator: shown when the first wait starts,
/// hidden 500 ms after the last one ends so that back-to-back waits do not flicker.
class ORVWIDGETS_EXPORT OrvGlobalWaitDialog : public QObject
{
    Q_OBJECT
public:
    /*! The one instance, created on first use and deleted at application shutdown. */
    static OrvGlobalWaitDialog* getInstance();

    /*! Starts a wait with \a text (empty: "Waiting for server reply..."), the window placed on
        \a parent. The first wait shows the window at once (if armed and visible); a wait during
        the hiding phase keeps it. */
    void wait(QWidget* parent, const QString& text);
    /*! As wait(nullptr, \a text). */
    void wait(const QString& text);
    /*! Ends one wait; the window disappears 500 ms after the last one ends. Without a running
        wait it does nothing. */
    void done();
    /*! Shows the window again while a wait runs (\a visible true), or keeps it hidden while
        none runs (false). */
    void setVisible(bool visible);
    /*! Replaces the text of the shown window; empty means "Waiting for server reply...". */
    void setCustomText(const QString& text);
    /*! Hides the window now; until rearm(), waits are counted but show nothing. */
    void unarm();
    /*! Lets waits show the window again, at once if a wait runs. */
    void rearm();

    /*! The number of running waits. */
    int waitingCount() const { return m_waitingCount; }
    /*! False between unarm() and rearm(). */
    bool isArmed() const { return m_armed; }
    /*! The last value given to setVisible() (true initially). */
    bool isVisible() const { return m_visible; }
    /// The window is on screen (busy, or still shown during the hiding phase).
    bool isShown() const { return m_progressDialog->isShown(); }
    /*! The busy window helper the indicator uses; owned by the indicator. */
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
