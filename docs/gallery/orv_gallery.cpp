// orv-gallery: renders every widget of the catalog in English and German, in a light
// and a dark palette, and writes a page fragment that shows the pictures in each
// class's reference page.
//
//     orv-gallery OUTPUT_DIR     (runs offscreen; writes OUTPUT_DIR/*.png and gallery.dox)

#include "orv_widget_catalog.h"

#include <dax_translation.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTextStream>
#include <QWidget>

#include <cstdio>
#include <memory>

using OrvWidgets::DesignerPlugin::WidgetEntry;

namespace {

struct Look
{
    const char* name;
    const char* caption;
    QPalette palette;
};

QPalette darkPalette()
{
    QPalette p;
    const QColor window(0x2b, 0x2e, 0x33), base(0x1f, 0x22, 0x26), text(0xe6, 0xe8, 0xeb);
    const QColor disabledText(0x80, 0x84, 0x8a), highlight(0x3d, 0x8b, 0xd9);
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, window);
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::Button, window.lighter(115));
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::ToolTipBase, base);
    p.setColor(QPalette::ToolTipText, text);
    p.setColor(QPalette::Highlight, highlight);
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, highlight.lighter(130));
    p.setColor(QPalette::PlaceholderText, disabledText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, disabledText);
    return p;
}

// The widget in its typical state beside a disabled one, on the palette's window colour.
QPixmap render(const WidgetEntry& entry)
{
    QWidget scene;
    scene.setAttribute(Qt::WA_DontShowOnScreen);
    scene.setAutoFillBackground(true);
    auto* layout = new QHBoxLayout(&scene);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(16);
    for (const bool enabled : {true, false}) {
        QWidget* widget = entry.create(&scene);
        if (!widget)
            continue;
        widget->setMinimumSize(widget->minimumSizeHint().expandedTo(entry.defaultSize));
        if (entry.showcase)
            entry.showcase(widget);
        widget->setEnabled(enabled);
        layout->addWidget(widget);
    }
    scene.show();
    scene.adjustSize();
    QCoreApplication::processEvents();
    return scene.grab();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: orv-gallery OUTPUT_DIR\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    if (!out.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "orv-gallery: cannot create %s\n", argv[1]);
        return 1;
    }
    // One style everywhere, so that the pictures do not depend on the desktop.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette light = QApplication::style()->standardPalette();
    const Look looks[] = {{"light", "light", light}, {"dark", "dark", darkPalette()}};
    const struct
    {
        const char* code;
        QByteArray locale;
        const char* caption;
    } languages[] = {{"en", "en_GB", "English"}, {"de", "de_DE", "German"}};

    const QList<WidgetEntry> entries = OrvWidgets::DesignerPlugin::widgetEntries();
    QFile dox(out.filePath(QStringLiteral("gallery.dox")));
    if (!dox.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        std::fprintf(stderr, "orv-gallery: cannot write %s\n", qPrintable(dox.fileName()));
        return 1;
    }
    QTextStream page(&dox);
    QHash<QString, QStringList> pictures;
    int written = 0;
    for (const auto& language : languages) {
        Dax::setTranslationLocale(language.locale, QStringLiteral("orvgallery"));
        for (const Look& look : looks) {
            QApplication::setPalette(look.palette);
            for (const WidgetEntry& entry : entries) {
                const QString name = entry.className.section(QStringLiteral("::"), -1);
                const QString file =
                    QStringLiteral("%1_%2_%3.png").arg(name, QLatin1String(language.code), QLatin1String(look.name));
                if (!render(entry).save(out.filePath(file))) {
                    std::fprintf(stderr, "orv-gallery: cannot write %s\n", qPrintable(file));
                    return 1;
                }
                pictures[entry.className]
                    << QStringLiteral("\\image html %1 \"%2, %3\"")
                           .arg(file, QLatin1String(language.caption), QLatin1String(look.caption));
                ++written;
            }
        }
    }
    for (const WidgetEntry& entry : entries) {
        page << "/*! \\class " << entry.className << "\n\n    <b>In the gallery</b>\n\n";
        for (const QString& picture : pictures.value(entry.className))
            page << "    " << picture << "\n";
        page << "*/\n\n";
    }
    std::printf("orv-gallery: %d pictures of %lld widgets in %s\n", written, qlonglong(entries.size()),
                qPrintable(out.absolutePath()));
    return 0;
}
