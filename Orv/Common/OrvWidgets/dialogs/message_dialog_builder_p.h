#pragma once

// Shared construction of the blocking and the signalling message dialogs.

#include "orv_message_dialog.h"

#include <functional>

namespace OrvWidgets::MessageDialogBuilder {

// Fills dialog with the message label and the row of buttons (fixed order Ok,
// Yes, No, Apply, Discard, Cancel; Ok and Cancel made default as they are added,
// so Cancel wins when both are there). onClicked receives the button's value.
// Returns the button that ends up as the default, or null.
QPushButton* build(OrvFramelessDialog* dialog, const QString& text, const QString& title,
                   OrvMessageDialog::Buttons buttons,
                   const QHash<OrvMessageDialog::Button, QString>& buttonTexts,
                   const std::function<void(OrvMessageDialog::Button)>& onClicked);

} // namespace OrvWidgets::MessageDialogBuilder
