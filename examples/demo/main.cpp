// orv-demo: the exercise-control demo application built on OrvWidgets.

#include "demo_controller.h"

#include <dax_translation.h>
#include <orv_base_layout_widget.h>
#include <splash.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>
#include <QTimer>

#include <cstdio>

namespace {

// The suite's applications share one translation domain; the operator menu
// switches the language of exactly this domain.
const QString kDomain = QStringLiteral("qeb");

} // namespace

int main(int argc, char** argv)
{
    // Operators need no developer chatter; QT_LOGGING_RULES brings it back.
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("orv-demo"));
    QApplication::setOrganizationName(QStringLiteral("orv"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Exercise-control demo application of the OrvWidgets library."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Save a PNG of the window to FILE once painted, then exit."),
                                        QStringLiteral("FILE"));
    const QCommandLineOption page(QStringLiteral("page"),
                                  QStringLiteral("Open the page IDENTIFIER at start (e.g. plan.participants)."),
                                  QStringLiteral("IDENTIFIER"));
    const QCommandLineOption lang(QStringLiteral("lang"), QStringLiteral("User interface language: de or en."),
                                  QStringLiteral("de|en"), QStringLiteral("en"));
    parser.addOptions({screenshot, page, lang});
    parser.process(app);

    const QString language = parser.value(lang);
    if (language != QLatin1String("de") && language != QLatin1String("en")) {
        std::fprintf(stderr, "orv-demo: --lang must be de or en\n");
        return 2;
    }
    Dax::setTranslationLocale(language == QLatin1String("de") ? "de_DE" : "en_GB", kDomain);

    const bool takeScreenshot = parser.isSet(screenshot);
    OrvWidgets::Splash* splash = OrvWidgets::Splash::getInstance();
    splash->setMessage(DemoController::loadingText());
    splash->show();
    QCoreApplication::processEvents();

    DemoController controller;
    // exit(), not quit(): quit() first asks every window to close, and the shell and the
    // background refuse a close by design (the shell asks about unsaved changes itself).
    QObject::connect(&controller, &DemoController::closeRequested, &app, [] { QCoreApplication::exit(0); });
    OrvWidgets::OrvBaseLayoutWidget* shell = controller.shell();
    shell->resize(1440, 900);
    if (!takeScreenshot)
        controller.showBackground();
    shell->show();
    shell->activateWindow();
    splash->done();

    // The planning part first, with the participants at hand, unless told otherwise.
    if (auto* planning = shell->getMenu()->findChild<QAbstractButton*>(QStringLiteral("pbPlanning")))
        planning->click();
    {
        const QString identifier = parser.isSet(page) ? parser.value(page) : QStringLiteral("plan.participants");
        if (!controller.openEntry(identifier)) {
            std::fprintf(stderr, "orv-demo: no menu entry '%s'; known: %s\n", qPrintable(identifier),
                         qPrintable(controller.menuIdentifiers().join(QLatin1String(", "))));
            return 2;
        }
    }

    if (takeScreenshot) {
        const QString file = parser.value(screenshot);
        // Settle first: splitter sizes, the menu animation and the first clock tick.
        QTimer::singleShot(1200, shell, [shell, file] {
            const bool saved = shell->grab().save(file, "PNG");
            if (!saved)
                std::fprintf(stderr, "orv-demo: cannot write %s\n", qPrintable(file));
            QCoreApplication::exit(saved ? 0 : 1);
        });
    }
    return QApplication::exec();
}
