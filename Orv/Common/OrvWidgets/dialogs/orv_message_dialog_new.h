#pragma once

#include "orv_message_dialog.h"

namespace OrvWidgets {

// Non-blocking question: shown at once, the answer arrives as a signal.
class ORVWIDGETS_EXPORT OrvMessageDialogNew : public QObject
{
    Q_OBJECT
public:
    OrvMessageDialogNew(QWidget* parent, const QString& text, const QString& title,
                        OrvFramelessDialog::Behaviour behaviour, OrvMessageDialog::Buttons buttons,
                        const QHash<OrvMessageDialog::Button, QString>& buttonTexts, bool deleteOnClose);
    ~OrvMessageDialogNew() override;

    OrvFramelessDialog* dialog() const { return m_dialog; }

Q_SIGNALS:
    void ok();
    void yes();
    void no();
    void apply();
    void discard();
    void cancel();

private:
    QPointer<OrvFramelessDialog> m_dialog;
};

} // namespace OrvWidgets
