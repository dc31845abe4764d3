#pragma once

// One logging category per subsystem, so that QT_LOGGING_RULES="orv.<subsystem>.*=true"
// (or "orv.*.debug=true") controls a whole folder. The page base logs through the
// "OrvWidget.OrvDialog" logger of the platform instead.

#include <QLoggingCategory>

namespace OrvWidgets {

Q_DECLARE_LOGGING_CATEGORY(lcFoundation)  // "orv.foundation"
Q_DECLARE_LOGGING_CATEGORY(lcDialogs)     // "orv.dialogs"
Q_DECLARE_LOGGING_CATEGORY(lcContainers)  // "orv.containers"
Q_DECLARE_LOGGING_CATEGORY(lcEditors)     // "orv.editors"
Q_DECLARE_LOGGING_CATEGORY(lcModels)      // "orv.models"
Q_DECLARE_LOGGING_CATEGORY(lcTextEditors) // "orv.texteditors"
Q_DECLARE_LOGGING_CATEGORY(lcViews)       // "orv.views"
Q_DECLARE_LOGGING_CATEGORY(lcShell)       // "orv.shell"

} // namespace OrvWidgets
