#include "tab_bar_tab_style.h"

namespace Styles {

QColor TabBarTabStyle::primaryNormal() { return QColor(0x5a, 0x67, 0x74); }
QColor TabBarTabStyle::primarySelected() { return QColor(0x1f, 0x6f, 0xb2); }
QColor TabBarTabStyle::primaryDisabled() { return QColor(0xa9, 0xb1, 0xb9); }
QColor TabBarTabStyle::secondaryNormal() { return QColor(0x6b, 0x74, 0x7d); }
QColor TabBarTabStyle::secondarySelected() { return QColor(0x2c, 0x36, 0x42); }
QColor TabBarTabStyle::secondaryDisabled() { return QColor(0xb8, 0xbe, 0xc4); }

} // namespace Styles
