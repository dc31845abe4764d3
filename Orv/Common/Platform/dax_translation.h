#pragma once

#include "orvplatform_export.h"

#include <QByteArray>
#include <QString>

/*! Translation and logging services of the suite. */
namespace Dax {

/*! The current translation locale name, "en_GB" until set. */
ORVPLATFORM_EXPORT QByteArray translationLocale();

/*! Switches the user interface language at runtime to \a locale ("de_DE", "en_GB"):
    removes the translators installed by the previous call, installs the library's
    embedded translator for the locale and, when found, the application's
    "<domain>_<lang>.qm" for \a domain (searched in ":/i18n", "<appdir>/translations" and
    "<appdir>"). Widgets then receive QEvent::LanguageChange and re-read their texts. */
ORVPLATFORM_EXPORT void setTranslationLocale(const QByteArray& locale, const QString& domain);

} // namespace Dax
