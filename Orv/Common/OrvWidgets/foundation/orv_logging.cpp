#include "orv_logging_p.h"

namespace OrvWidgets {

Q_LOGGING_CATEGORY(lcFoundation, "orv.foundation")
Q_LOGGING_CATEGORY(lcDialogs, "orv.dialogs")
Q_LOGGING_CATEGORY(lcContainers, "orv.containers")
Q_LOGGING_CATEGORY(lcEditors, "orv.editors")
Q_LOGGING_CATEGORY(lcModels, "orv.models")
Q_LOGGING_CATEGORY(lcTextEditors, "orv.texteditors")
Q_LOGGING_CATEGORY(lcViews, "orv.views")
Q_LOGGING_CATEGORY(lcShell, "orv.shell")

} // namespace OrvWidgets
