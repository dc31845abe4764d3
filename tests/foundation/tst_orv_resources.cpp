#include <orv_events.h>

#include <QtTest>
#include <QImageReader>
#include <QSvgRenderer>

// Checks the embedded resource collection: every name the widgets and the
// applications rely on is present and holds a usable asset.

namespace {

enum class Kind { Svg, Png, Ico, Wav, Text };

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

const char* const kSounds[] = {":/beep.wav", ":/DMF.wav", ":/entryNew.wav", ":/leaveNew.wav",
                               ":/warningrange-enter.wav", ":/warningrange-leave.wav",
                               ":/effectarea-enter.wav", ":/effectarea-leave.wav"};

} // namespace

Q_DECLARE_METATYPE(Kind)

class TestOrvResources : public QObject
{
    Q_OBJECT
private Q_SLOTS:
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
                                  "zoom_map_to", "library", "freq_plan", "library_load", "library_save"}) {
            const QByteArray name = QByteArray(QByteArray(":/style/") + style + ".svg");
            QTest::newRow(name.constData()) << Kind::Svg << square;
        }

        QTest::newRow(":/kiv_icon_256.png") << Kind::Png << QSize(256, 256);
        QTest::newRow(":/kiv_logo.png") << Kind::Png << QSize(128, 128);
        QTest::newRow(":/kiv_komplett.png") << Kind::Png << QSize(480, 200);
        QTest::newRow(":/kiv_internal_dds_logo_256x256.png") << Kind::Png << QSize(256, 256);
        for (const char* flag : {":/Germany-Flag.png", ":/Great-Britain-Flag.png", ":/US-Flag.png",
                                 ":/European-Union-Flag.png"})
            QTest::newRow(flag) << Kind::Png << QSize(96, 64);
        QTest::newRow(":/stylesheet-branch-closed.png") << Kind::Png << QSize(16, 16);
        QTest::newRow(":/stylesheet-branch-open.png") << Kind::Png << QSize(16, 16);
        QTest::newRow(":/ScriptEditor-Changelog-1.png") << Kind::Png << QSize(480, 300);
        QTest::newRow(":/kiv_internal_dds_logo_256x256.ico") << Kind::Ico << QSize(256, 256);

        for (const char* sound : kSounds)
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
        case Kind::Png: {
            QCOMPARE(QImageReader(name).format(), QByteArray("png"));
            const QImage image(name);
            QVERIFY(!image.isNull());
            QCOMPARE(image.size(), size);
            break;
        }
        case Kind::Ico: {
            // Icon directory header: reserved 0, type 1 (icon), at least one entry.
            QCOMPARE(qFromLittleEndian<quint16>(data.constData()), quint16(0));
            QCOMPARE(qFromLittleEndian<quint16>(data.constData() + 2), quint16(1));
            const int count = qFromLittleEndian<quint16>(data.constData() + 4);
            QVERIFY(count > 0);
            QVERIFY(data.size() > 6 + 16 * count);
            if (!QImageReader::supportedImageFormats().contains("ico"))
                break;
            QImageReader reader(name, "ico");
            QCOMPARE(reader.imageCount(), count);
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
            break;
        }
        case Kind::Text:
            QVERIFY(QString::fromUtf8(data).trimmed().size() > 100);
            break;
        }
    }

    void soundsAreDistinct()
    {
        QSet<QByteArray> seen;
        for (const char* sound : kSounds) {
            QFile file(QString::fromLatin1(sound));
            QVERIFY(file.open(QIODevice::ReadOnly));
            seen.insert(file.readAll().mid(44));
        }
        QCOMPARE(seen.size(), int(std::size(kSounds)));
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
        QVERIFY(QFile::exists(QStringLiteral("icon:no_pic.svg")));
        QVERIFY(QSvgRenderer(QStringLiteral("icon:no_pic.svg")).isValid());
        QVERIFY(!QPixmap(QStringLiteral("icon:warning.svg")).isNull());
    }
};

int main(int argc, char** argv)
{
    // Keeps the library linked in even though only its resources are used.
    volatile auto keepLinked = &OrvWidgets::OrvLinkEvent::eventTypeId;
    Q_UNUSED(keepLinked);

    // An application may register its own "icon" folder before its application object exists.
    QDir::addSearchPath(QStringLiteral("icon"), QStringLiteral(":/test-application-icons"));
    {
        QCoreApplication first(argc, argv); // startup functions run for every application object
    }
    QGuiApplication app(argc, argv);
    TestOrvResources test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_orv_resources.moc"
