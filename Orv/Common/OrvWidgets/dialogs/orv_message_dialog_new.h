#pragma once

#include "orv_message_dialog.h"

namespace OrvWidgets {

/// Non-blocking question: shown at once, the answer arrives as a signal.
class ORVWIDGETS_EXPORT OrvMessageDialogNew : public QObject
{
    Q_OBJECT
public:
    /*! Shows the question (\a text, \a title, one button per flag of \a buttons, texts from
        \a buttonTexts where given) over \a parent at once and returns. With \a deleteOnClose the
        object deletes itself once answered. */
    OrvMessageDialogNew(QWidget* parent, const QString& text, const QString& title,
                        OrvFramelessDialog::Behaviour behaviour, OrvMessageDialog::Buttons buttons,
                        const QHash<OrvMessageDialog::Button, QString>& buttonTexts, bool deleteOnClose);
    ~OrvMessageDialogNew() override;

    /*! The dialog on screen; null once it is closed. */
    OrvFramelessDialog* dialog() const { return m_dialog; }

Q_SIGNALS:
    /*! Emitted when the user pressed OK. */
    void ok();
    /*! Emitted when the user pressed Yes. */
    void yes();
    /*! Emitted when the user pressed No. */
    void no();
    /*! Emitted when the user pressed Apply. */
    void apply();
    /*! Emitted when the user pressed Discard. */
    void discard();
    /*! Emitted when the user pressed Cancel or Escape. */
    void cancel();

private:
    QPointer<OrvFramelessDialog> m_dialog;
};

} // namespace OrvWidgets
