#pragma once

#include "orvplatform_export.h"

#include <QByteArray>
#include <QString>

namespace Dax {

// Current translation locale name, "en_GB" until set.
ORVPLATFORM_EXPORT QByteArray translationLocale();

// Switches the user interface language at runtime: removes the translators
// installed by the previous call, installs the library's embedded translator
// for the locale and, when found, the application's "<domain>_<lang>.qm"
// (searched in ":/i18n", "<appdir>/translations" and "<appdir>"). Widgets then
// receive QEvent::LanguageChange and re-read their texts.
ORVPLATFORM_EXPORT void setTranslationLocale(const QByteArray& locale, const QString& domain);

} // namespace Dax
