#pragma once

#include "orv_frameless_dialog.h"
#include "orvwidgets_export.h"

#include <QFlags>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

namespace OrvWidgets {

/// Blocking questions in the suite's own dialogs.
class ORVWIDGETS_EXPORT OrvMessageDialog
{
    Q_GADGET
public:
    /*! The buttons a question can offer; UNKNOWN (0) is no button. */
    enum Button { UNKNOWN = 0, Ok = 1, Yes = 2, No = 4, Cancel = 8, Apply = 16, Discard = 32 };
    Q_ENUM(Button)
    /*! A set of Button values. */
    Q_DECLARE_FLAGS(Buttons, Button)
    /*! Popup or modal, as OrvFramelessDialog::Behaviour. */
    using Behaviour = OrvFramelessDialog::Behaviour;

    /// Shows the question and runs a nested event loop until it is answered;
    /// returns the button pressed (Cancel for Escape or a vanished dialog).
    static Button showMessage(QWidget* parent, const QString& text, const QString& title = QString(),
                              Behaviour behaviour = OrvFramelessDialog::Modal, Buttons buttons = Ok,
                              const QHash<Button, QString>& buttonTexts = {});

    /// The standard question before closing a changed page.
    static Button askApplyDiscardCancel(QWidget* parent);
};

inline size_t qHash(OrvMessageDialog::Button key, size_t seed = 0) noexcept
{
    return ::qHash(static_cast<int>(key), seed);
}

/// Builds and runs one blocking question.
class ORVWIDGETS_EXPORT OrvMessageDialogHelper : public QObject
{
    Q_OBJECT
public:
    /*! As OrvMessageDialog::Button. */
    using Button = OrvMessageDialog::Button;
    /*! As OrvMessageDialog::Buttons. */
    using Buttons = OrvMessageDialog::Buttons;

    /*! A helper owned by \a parent; it runs one question at a time. */
    explicit OrvMessageDialogHelper(QObject* parent);
    ~OrvMessageDialogHelper() override;

    /*! Builds the question (\a text, \a title, one button per flag of \a buttons, texts from
        \a buttonTexts where given) over \a parent, runs a nested event loop until it is answered
        and returns the button pressed. */
    Button showMessage(QWidget* parent, const QString& text, const QString& title,
                       OrvFramelessDialog::Behaviour behaviour, Buttons buttons,
                       const QHash<Button, QString>& buttonTexts);

Q_SIGNALS:
    /*! Emitted when the question is answered, to leave the nested event loop. */
    void signalQuitEventLoop();

private Q_SLOTS:
    void slotOkay();
    void slotYes();
    void slotNo();
    void slotCancel();
    void slotApply();
    void slotDiscard();

private:
    void finish(Button result);

    Button m_result = OrvMessageDialog::Cancel;
    QPointer<OrvFramelessDialog> m_dialog;
    bool m_finished = false;
};

} // namespace OrvWidgets

Q_DECLARE_OPERATORS_FOR_FLAGS(OrvWidgets::OrvMessageDialog::Buttons)
