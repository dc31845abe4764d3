#include "dax_translation.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QPointer>
#include <QTranslator>

#include <vector>

Q_LOGGING_CATEGORY(lcTranslation, "orv.platform.translation")

namespace Dax {
namespace {

QByteArray s_locale = QByteArrayLiteral("en_GB");
std::vector<QPointer<QTranslator>> s_installed;

void removeInstalled()
{
    for (const QPointer<QTranslator>& t : s_installed) {
        if (t) {
            QCoreApplication::removeTranslator(t);
            delete t;
        }
    }
    s_installed.clear();
}

bool loadAndInstall(const QString& baseName, const QStringList& dirs)
{
    for (const QString& dir : dirs) {
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(baseName, dir)) {
            QCoreApplication::installTranslator(translator);
            s_installed.emplace_back(translator);
            return true;
        }
        delete translator;
    }
    return false;
}

} // namespace

QByteArray translationLocale()
{
    return s_locale;
}

void setTranslationLocale(const QByteArray& locale, const QString& domain)
{
    if (!QCoreApplication::instance()) {
        qCWarning(lcTranslation) << "Dax::setTranslationLocale: no application object - locale not changed";
        return;
    }
    if (locale.isEmpty()) {
        qCWarning(lcTranslation) << "Dax::setTranslationLocale: empty locale ignored";
        return;
    }
    s_locale = locale;
    const QString name = QString::fromLatin1(locale);
    const QString lang = name.section(QLatin1Char('_'), 0, 0);
    QLocale::setDefault(QLocale(name));

    // Removing and installing translators each posts a LanguageChange; widgets
    // re-read their texts once the event loop runs, so the intermediate state
    // (no translator) is never painted.
    removeInstalled();
    if (lang == QLatin1String("en"))
        return; // The source texts are English.

    const QString appDir = QCoreApplication::applicationDirPath();
    const QString qtDir = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    loadAndInstall(QStringLiteral("qtbase_") + lang, {qtDir});
    if (!loadAndInstall(QStringLiteral("orvwidgets_") + lang, {QStringLiteral(":/i18n")}))
        qCWarning(lcTranslation).noquote() << "Dax::setTranslationLocale: no library translation for" << name;
    if (!domain.isEmpty()) {
        loadAndInstall(domain + QLatin1Char('_') + lang,
                       {QStringLiteral(":/i18n"), appDir + QStringLiteral("/translations"), appDir});
    }
}

} // namespace Dax
