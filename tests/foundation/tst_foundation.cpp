#include <orv_events.h>

#include <QtTest>
#include <QImageReader>
#include <QSvgRenderer>

using namespace OrvWidgets;

namespace {

enum class Kind { Svg, Image, Wav, Text };

struct WavInfo
{
    int sampleRate = 0; // 0: not 16-bit mono PCM
    double seconds = 0;
    int peak = 0;
};

// Minimal RIFF/WAVE reader: walks the chunks, expects 16-bit mono PCM.
WavInfo readWav(const QByteArray& data)
{
    const auto u16 = [&](qsizetype at) { return qFromLittleEndian<quint16>(data.constData() + at); };
    const auto u32 = [&](qsizetype at) { return qFromLittleEndian<quint32>(data.constData() + at); };
    if (data.size() < 44 || !data.startsWith("RIFF") || data.mid(8, 4) != "WAVE" || u32(4) + 8 != quint32(data.size()))
        return {};
    int rate = 0;
    for (qsizetype at = 12; at + 8 <= data.size(); at += 8 + u32(at + 4) + (u32(at + 4) & 1)) {
        const quint32 size = u32(at + 4);
        const qsizetype body = at + 8;
        if (body + qsizetype(size) > data.size())
            return {};
        if (data.mid(at, 4) == "fmt " && size >= 16 && u16(body) == 1 && u16(body + 2) == 1
            && u16(body + 12) == 2 && u16(body + 14) == 16 && u32(body + 8) == u32(body + 4) * 2)
            rate = int(u32(body + 4));
        if (data.mid(at, 4) != "data" || rate == 0)
            continue;
        WavInfo info{rate, double(size / 2) / rate, 0};
        for (quint32 i = 0; i + 1 < size; i += 2)
            info.peak = qMax(info.peak, qAbs(int(qFromLittleEndian<qint16>(data.constData() + body + i))));
        return info;
    }
    return {};
}

// Share of pixels the icon actually paints at the given size.
double coverage(QSvgRenderer& renderer, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, size, size));
    painter.end();
    int painted = 0;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            painted += qAlpha(image.pixel(x, y)) > 32 ? 1 : 0;
    return double(painted) / (size * size);
}

// Describes the link and save-image events that reach the application object.
struct EventRecorder : QObject
{
    EventRecorder() { qApp->installEventFilter(this); } // a destroyed filter removes itself
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QString accepted = event->isAccepted() ? "accepted " : "";
        if (watched == qApp && event->type() == OrvLinkEvent::eventTypeId()) {
            const auto* link = static_cast<OrvLinkEvent*>(event);
            seen << accepted + link->url().toString() + (link->sourceBaseLayoutWidget() ? " from source" : "");
        } else if (watched == qApp && event->type() == SaveImageEvent::saveImageEventId()) {
            const auto* save = static_cast<SaveImageEvent*>(event);
            seen << accepted + QString("image %1x%2").arg(save->pixmap().width()).arg(save->pixmap().height())
                        + (save->widget() ? " from source" : "");
        }
        return false;
    }
    QStringList seen;
};

} // namespace

Q_DECLARE_METATYPE(Kind)

class TestFoundation : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Every name the widgets and the applications rely on is present and holds a usable asset.
    void resource_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QSize>("size"); // expected pixel size; for SVGs only whether it is square
        const QSize square(1, 1), any;
        for (const char* name : {":/success.svg", ":/error.svg", ":/warning.svg", ":/info.svg", ":/ack.svg",
                                 ":/ack_dark.svg", ":/close.svg", ":/close_dark.svg",
                                 ":/kiv_internal_sql_logo_256x256.svg", ":/icon/no_pic.svg", ":/icon/warning.svg"})
            QTest::newRow(name) << Kind::Svg << square;
        QTest::newRow(":/kiv_splitter_left.svg") << Kind::Svg << any;
        for (const char* style : {"warning", "dialog-ok", "dialog-close", "media-vcr-nopause",
                                  "show_building_configuration", "document-new", "help_index", "document-edit",
                                  "import_documents", "export_documents", "filter_map_settings", "center_to_object",
                                  "zoom_map_to", "library", "freq_plan", "library_load", "library_save"})
            QTest::addRow(":/style/%s.svg", style) << Kind::Svg << square;
        const std::pair<const char*, QSize> images[] = {
            {":/kiv_icon_256.png", {256, 256}}, {":/kiv_logo.png", {128, 128}}, {":/kiv_komplett.png", {480, 200}},
            {":/kiv_internal_dds_logo_256x256.png", {256, 256}}, {":/ScriptEditor-Changelog-1.png", {480, 300}},
            {":/Germany-Flag.png", {96, 64}}, {":/Great-Britain-Flag.png", {96, 64}}, {":/US-Flag.png", {96, 64}},
            {":/European-Union-Flag.png", {96, 64}}, {":/stylesheet-branch-closed.png", {16, 16}},
            {":/stylesheet-branch-open.png", {16, 16}}, {":/kiv_internal_dds_logo_256x256.ico", {256, 256}}};
        for (const auto& [name, size] : images)
            QTest::newRow(name) << Kind::Image << size;
        for (const char* sound : {":/beep.wav", ":/DMF.wav", ":/entryNew.wav", ":/leaveNew.wav",
                                  ":/warningrange-enter.wav", ":/warningrange-leave.wav", ":/effectarea-enter.wav",
                                  ":/effectarea-leave.wav"})
            QTest::newRow(sound) << Kind::Wav << any;
        QTest::newRow(":/start.html") << Kind::Text << any;
        QTest::newRow(":/scripts.js") << Kind::Text << any;
    }
    void resource()
    {
        QFETCH(Kind, kind);
        QFETCH(QSize, size);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QFile file(name);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(name));
        const QByteArray data = file.readAll();
        QVERIFY(!data.isEmpty());
        QVERIFY2(data.size() < 400 * 1024, "assets are kept small");

        switch (kind) {
        case Kind::Svg: {
            QSvgRenderer renderer(name);
            QVERIFY(renderer.isValid());
            if (size.isValid())
                QCOMPARE(renderer.defaultSize().width(), renderer.defaultSize().height());
            for (int px : {20, 48}) {
                const double painted = coverage(renderer, px);
                QVERIFY2(painted > 0.03, qPrintable(QStringLiteral("%1 px: %2").arg(px).arg(painted)));
            }
            break;
        }
        case Kind::Image: { // judged by content, not by name
            QImageReader reader(name);
            reader.setDecideFormatFromContent(true);
            QCOMPARE(reader.format(), QFileInfo(name).suffix().toLatin1());
            const QImage image = reader.read();
            QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
            QCOMPARE(image.size(), size);
            break;
        }
        case Kind::Wav: {
            const WavInfo wav = readWav(data);
            QVERIFY(wav.sampleRate == 22050 || wav.sampleRate == 44100);
            QVERIFY2(wav.seconds >= 0.05 && wav.seconds <= 0.8, qPrintable(QString::number(wav.seconds)));
            QVERIFY2(wav.peak > 8000 && wav.peak < 32767, "audible and not clipped");
            static QSet<QByteArray> sounds;
            QVERIFY2(!sounds.contains(data.mid(44)), "a copy of another sound");
            sounds.insert(data.mid(44));
            break;
        }
        case Kind::Text:
            QVERIFY(QString::fromUtf8(data).trimmed().size() > 100);
            break;
        }
    }

    // The start page loads its scripts; those taken from system packages are
    // either left out or real content.
    void startPageLoadsItsScripts()
    {
        QFile file(QStringLiteral(":/start.html"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray page = file.readAll();
        const QList<std::pair<const char*, QByteArray>> scripts = {
            {"scripts.js", {}}, {"jquery-3.1.0.min.js", "jquery"}, {"jquery.orgchart.js", "orgchart"},
            {"qwebchannel.js", "qwebchannel"}};
        for (const auto& [script, marker] : scripts) {
            QVERIFY2(page.contains(QByteArray(QByteArray("src=\"") + script + '"')), script);
            QFile content(QStringLiteral(":/") + QLatin1String(script));
            if (marker.isEmpty() || !content.open(QIODevice::ReadOnly))
                continue;
            const QByteArray text = content.readAll();
            QVERIFY2(text.size() > 1000 && text.toLower().contains(marker), script);
        }
    }

    void iconSearchPath()
    {
        const QStringList paths = QDir::searchPaths(QStringLiteral("icon"));
        QCOMPARE(paths.count(QStringLiteral(":/icon")), 1);                 // once, despite two application objects
        QVERIFY(paths.contains(QStringLiteral(":/test-application-icons"))); // the application's own path is kept
        QVERIFY(QSvgRenderer(QStringLiteral("icon:no_pic.svg")).isValid());
        QVERIFY(!QPixmap(QStringLiteral("icon:warning.svg")).isNull());
    }

    // Each event registers its own type once and carries it.
    void eventTypesAreStableAndDistinct()
    {
        const QList<int> types = {OrvLinkEvent(QUrl(), nullptr).type(), SaveImageEvent(nullptr, QPixmap()).type(),
                                  SetMarkerEvent("m").type(),           AddMarkerEvent().type(),
                                  AddSnapshotEvent().type(),            SaveSnapshotEvent("s").type()};
        QCOMPARE(types, (QList<int>{OrvLinkEvent::eventTypeId(), SaveImageEvent::saveImageEventId(),
                                    SetMarkerEvent::setMarkerEventId(), AddMarkerEvent::addMarkerEventId(),
                                    AddSnapshotEvent::addSnapshotEventId(), SaveSnapshotEvent::saveSnapshotEventId()}));
        QCOMPARE(QSet<int>(types.begin(), types.end()).size(), 6);
        QVERIFY(*std::min_element(types.begin(), types.end()) >= QEvent::User);
    }

    // Posted events arrive unaccepted; a link whose source is gone by then names none.
    void postedEvents()
    {
        QWidget page;
        page.resize(40, 30);
        auto* shell = new QWidget;
        EventRecorder recorder;
        postToApplication(new OrvLinkEvent(QUrl(QStringLiteral("orv://NotificationAck/%1").arg(42)), shell));
        postToApplication(nullptr); // ignored
        postToApplication(new SaveImageEvent(&page, page.grab()));
        delete shell;
        QCoreApplication::sendPostedEvents(qApp);
        QCOMPARE(recorder.seen, QStringList({"orv://notificationack/42", "image 40x30 from source"}));
    }
};

int main(int argc, char** argv)
{
    // An application may register its own "icon" folder before its application object exists.
    QDir::addSearchPath(QStringLiteral("icon"), QStringLiteral(":/test-application-icons"));
    {
        QCoreApplication first(argc, argv); // startup functions run for every application object
    }
    QApplication app(argc, argv);
    TestFoundation test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_foundation.moc"
