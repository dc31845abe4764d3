#pragma once

#include "orvplatform_export.h"

#include <QColor>

/*! Colours shared by the suite's widgets. */
namespace Styles {

/*! Colours of tab texts and close buttons: primary (top-level) and secondary (per menu
    group) tab bars, each normal, selected and disabled. */
struct ORVPLATFORM_EXPORT TabBarTabStyle
{
    /*! Text of a primary tab that is neither selected nor disabled. */
    static QColor primaryNormal();
    /*! Text of the selected primary tab. */
    static QColor primarySelected();
    /*! Text of a disabled primary tab. */
    static QColor primaryDisabled();
    /*! Text of a secondary tab that is neither selected nor disabled. */
    static QColor secondaryNormal();
    /*! Text of the selected secondary tab. */
    static QColor secondarySelected();
    /*! Text of a disabled secondary tab. */
    static QColor secondaryDisabled();
};

} // namespace Styles
