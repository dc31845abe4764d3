#pragma once

#include "orv_frameless_dialog.h"

#include <QObject>
#include <QPointer>

class QLabel;

namespace OrvWidgets {

/// A modal busy window while a server request runs and, when it ends, a modal
/// result window with an OK button. The caller decides when a wait timed out.
class ORVWIDGETS_EXPORT OrvProgressDialogHelper : public QObject
{
    Q_OBJECT
public:
    /// A fixed underlying type: callers may pass numbers outside the four values.
    enum ReplyResult : int { Close = 0, Success = 1, Failure = 2, TimeOut = 3 };
    Q_ENUM(ReplyResult)

    /*! A helper owned by \a parent, which is also where its windows are placed. */
    explicit OrvProgressDialogHelper(QWidget* parent);
    ~OrvProgressDialogHelper() override;

    /// A busy or result window currently exists.
    bool isShown() const;
    /// Text of the busy window; empty means the default text.
    void setCustomText(const QString& text);
    /*! Places the windows on \a parent from now on, moving a window already shown. */
    void setParentWidget(QWidget* parent);
    /*! The widget the windows are placed on. */
    QWidget* parentWidget() const { return m_parentWidget; }
    /// The busy or result window on screen, or null.
    OrvFramelessDialog* window() const { return m_waitDlg; }

Q_SIGNALS:
    /*! Emitted when the user closed the result window with OK. */
    void accepted();

public Q_SLOTS:
    /*! Shows the modal busy window ("Waiting for server reply..."), replacing a window already
        shown. */
    void slotShowWaitForReplyWindow();
    /*! Ends the busy window; for every \a result but Close a modal result window says how it
        ended (for Failure with \a reason). Without a window it does nothing. */
    void slotStopWaitForReplyWindow(const OrvWidgets::OrvProgressDialogHelper::ReplyResult& result,
                                    const QString& reason = QString());

private:
    void accept();

    QPointer<OrvFramelessDialog> m_waitDlg;
    QPointer<QWidget> m_parentWidget;
    QPointer<QLabel> m_textLabel;
};

} // namespace OrvWidgets
