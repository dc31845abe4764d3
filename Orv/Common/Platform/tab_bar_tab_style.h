#pragma once

#include "orvplatform_export.h"

#include <QColor>

namespace Styles {

// Colours of tab texts and close buttons: primary (top-level) and secondary
// (per menu group) tab bars, each normal, selected and disabled.
struct ORVPLATFORM_EXPORT TabBarTabStyle
{
    static QColor primaryNormal();
    static QColor primarySelected();
    static QColor primaryDisabled();
    static QColor secondaryNormal();
    static QColor secondarySelected();
    static QColor secondaryDisabled();
};

} // namespace Styles
