// orv-demo: the exercise-control demo application built on OrvWidgets.

#include "demo_window.h"

#include <dax_translation.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>
#include <QWindow>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("orv-demo"));
    QApplication::setOrganizationName(QStringLiteral("orv"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Exercise-control demo application of the OrvWidgets library."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Save a PNG of the window to FILE once painted, then exit."),
                                        QStringLiteral("FILE"));
    const QCommandLineOption page(QStringLiteral("page"), QStringLiteral("Open the page IDENTIFIER at start."),
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
    Dax::setTranslationLocale(language == QLatin1String("de") ? "de_DE" : "en_GB", QStringLiteral("orv-demo"));

    DemoWindow window;
    window.resize(720, 360);
    window.show();

    if (parser.isSet(screenshot)) {
        const QString file = parser.value(screenshot);
        // Two turns of the event loop after exposure: layouts and translations settle first.
        QTimer::singleShot(300, &window, [&window, file] {
            const bool saved = window.grab().save(file, "PNG");
            if (!saved)
                std::fprintf(stderr, "orv-demo: cannot write %s\n", qPrintable(file));
            QCoreApplication::exit(saved ? 0 : 1);
        });
    }
    return QApplication::exec();
}
