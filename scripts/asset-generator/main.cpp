// Produces the binary assets of the resource collection from the SVG sources
// kept beside this program: PNG renderings, the tool logo as ICO and the alert
// sounds (synthesised). On request it also renders the demo application's
// project images (logo, splash, backgrounds) from the sources' project folder.
// Optionally renders a contact sheet of every icon for a visual check.

#include <QBuffer>
#include <QCommandLineParser>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

struct PngJob
{
    const char* source; // SVG under the sources folder
    const char* output; // file name in the resource folder
    int width;
    int height;
    bool opaque = false; // written without alpha channel: full-area images get much smaller
};

const PngJob kPngJobs[] = {
    {"kiv_emblem.svg", "kiv_icon_256.png", 256, 256},
    {"kiv_emblem.svg", "kiv_logo.png", 128, 128},
    {"kiv_komplett.svg", "kiv_komplett.png", 480, 200},
    {"kiv_internal_dds_logo.svg", "kiv_internal_dds_logo_256x256.png", 256, 256},
    {"Germany-Flag.svg", "Germany-Flag.png", 96, 64},
    {"Great-Britain-Flag.svg", "Great-Britain-Flag.png", 96, 64},
    {"US-Flag.svg", "US-Flag.png", 96, 64},
    {"European-Union-Flag.svg", "European-Union-Flag.png", 96, 64},
    {"stylesheet-branch-closed.svg", "stylesheet-branch-closed.png", 16, 16},
    {"stylesheet-branch-open.svg", "stylesheet-branch-open.png", 16, 16},
    {"ScriptEditor-Changelog-1.svg", "ScriptEditor-Changelog-1.png", 480, 300},
};

// The images an application supplies to the library under ":/project/", here for the demo.
const PngJob kProjectJobs[] = {
    {"project/logo.svg", "logo.png", 256, 256},
    {"project/splash.svg", "splash.png", 640, 400, true},
    {"project/background.svg", "background.png", 1920, 1080, true},
    {"project/background_wide.svg", "background_wide.png", 3840, 1080, true},
};

const char kIcoSource[] = "kiv_internal_dds_logo.svg";
const char kIcoOutput[] = "kiv_internal_dds_logo_256x256.ico";

QImage renderSvg(const QString& file, QSize size)
{
    QSvgRenderer renderer(file);
    if (!renderer.isValid()) {
        std::fprintf(stderr, "invalid SVG: %s\n", qPrintable(file));
        return {};
    }
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

QByteArray pngBytes(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG", 9);
    return bytes;
}

bool writeFile(const QString& path, const QByteArray& data)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(data) != data.size()) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    std::printf("  %-40s %7lld bytes\n", qPrintable(QFileInfo(path).fileName()), static_cast<long long>(data.size()));
    return true;
}

template<typename T>
void appendLE(QByteArray& out, T value)
{
    char raw[sizeof(T)];
    qToLittleEndian(value, raw);
    out.append(raw, sizeof(T));
}

// ICO container whose entries are PNG streams (accepted by every current reader).
QByteArray icoBytes(const QString& svg, const QList<int>& sizes)
{
    QList<QByteArray> images;
    for (int s : sizes)
        images << pngBytes(renderSvg(svg, QSize(s, s)));

    QByteArray out;
    appendLE<quint16>(out, 0);                       // reserved
    appendLE<quint16>(out, 1);                       // type: icon
    appendLE<quint16>(out, quint16(images.size()));  // image count
    quint32 offset = 6 + 16 * quint32(images.size());
    for (int i = 0; i < images.size(); ++i) {
        const int s = sizes.at(i);
        out.append(char(s >= 256 ? 0 : s));          // width, 0 means 256
        out.append(char(s >= 256 ? 0 : s));          // height
        out.append(char(0));                         // palette size
        out.append(char(0));                         // reserved
        appendLE<quint16>(out, 1);                   // colour planes
        appendLE<quint16>(out, 32);                  // bits per pixel
        appendLE<quint32>(out, quint32(images.at(i).size()));
        appendLE<quint32>(out, offset);
        offset += quint32(images.at(i).size());
    }
    for (const QByteArray& image : images)
        out += image;
    return out;
}

// --- sounds -----------------------------------------------------------------

constexpr int kSampleRate = 22050;

struct Tone
{
    double start;    // seconds
    double duration; // seconds
    double freqFrom; // Hz at the start
    double freqTo;   // Hz at the end (glide)
    double gain;
    double decay;    // exponential decay per second after the attack
};

struct Sound
{
    const char* file;
    std::vector<Tone> tones;
};

// Soft bell-like timbre: fundamental with a little second and third harmonic.
std::vector<double> synthesise(const std::vector<Tone>& tones)
{
    double total = 0;
    for (const Tone& t : tones)
        total = std::max(total, t.start + t.duration);
    std::vector<double> mix(size_t(std::ceil(total * kSampleRate)), 0.0);
    const double attack = 0.008, release = 0.025;
    for (const Tone& t : tones) {
        const int first = int(t.start * kSampleRate);
        const int count = int(t.duration * kSampleRate);
        double phase = 0;
        for (int i = 0; i < count && first + i < int(mix.size()); ++i) {
            const double time = double(i) / kSampleRate;
            const double progress = double(i) / count;
            const double freq = t.freqFrom + (t.freqTo - t.freqFrom) * progress;
            phase += 2 * M_PI * freq / kSampleRate;
            double env = time < attack ? time / attack : std::exp(-(time - attack) * t.decay);
            const double left = t.duration - time;
            if (left < release)
                env *= left / release;
            const double wave = std::sin(phase) + 0.25 * std::sin(2 * phase) + 0.08 * std::sin(3 * phase);
            mix[size_t(first + i)] += t.gain * env * wave;
        }
    }
    return mix;
}

QByteArray wavBytes(const std::vector<double>& samples)
{
    double peak = 1e-9;
    for (double s : samples)
        peak = std::max(peak, std::abs(s));
    const double scale = 0.7 * 32767 / peak;
    const quint32 dataBytes = quint32(samples.size() * 2);

    QByteArray out;
    out += "RIFF";
    appendLE<quint32>(out, 36 + dataBytes);
    out += "WAVEfmt ";
    appendLE<quint32>(out, 16);              // fmt chunk size
    appendLE<quint16>(out, 1);               // PCM
    appendLE<quint16>(out, 1);               // mono
    appendLE<quint32>(out, kSampleRate);
    appendLE<quint32>(out, kSampleRate * 2); // byte rate
    appendLE<quint16>(out, 2);               // block align
    appendLE<quint16>(out, 16);              // bits per sample
    out += "data";
    appendLE<quint32>(out, dataBytes);
    for (double s : samples)
        appendLE<qint16>(out, qint16(std::lround(s * scale)));
    return out;
}

std::vector<Sound> sounds()
{
    const double C6 = 1046.5, E6 = 1318.5, G6 = 1568.0, A5 = 880.0, Cs6 = 1108.7, D6 = 1174.7;
    return {
        {"beep.wav", {{0.0, 0.20, A5, A5, 1.0, 9}}},
        {"DMF.wav", {{0.00, 0.07, D6, D6, 1.0, 6}, {0.11, 0.07, D6, D6, 1.0, 6}, {0.22, 0.07, D6, D6, 1.0, 6}}},
        {"entryNew.wav", {{0.0, 0.18, C6, C6, 1.0, 8}, {0.13, 0.40, G6, G6, 0.9, 7}}},
        {"leaveNew.wav", {{0.0, 0.18, G6, G6, 0.9, 8}, {0.13, 0.40, C6, C6, 1.0, 7}}},
        {"warningrange-enter.wav",
         {{0.0, 0.20, A5, A5, 1.0, 6}, {0.13, 0.20, Cs6, Cs6, 1.0, 6}, {0.26, 0.42, E6, E6, 1.0, 5}}},
        {"warningrange-leave.wav",
         {{0.0, 0.20, E6, E6, 1.0, 6}, {0.13, 0.20, Cs6, Cs6, 1.0, 6}, {0.26, 0.42, A5, A5, 1.0, 5}}},
        {"effectarea-enter.wav", {{0.0, 0.50, 520, 1040, 1.0, 2.5}, {0.0, 0.50, 780, 1560, 0.3, 2.5}}},
        {"effectarea-leave.wav", {{0.0, 0.50, 1040, 520, 1.0, 2.5}, {0.0, 0.50, 1560, 780, 0.3, 2.5}}},
    };
}

// --- contact sheet ------------------------------------------------------------

bool contactSheet(const QString& resourceDir, const QString& outFile)
{
    QStringList icons;
    QDirIterator it(resourceDir, {QStringLiteral("*.svg")}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        icons << QDir(resourceDir).relativeFilePath(it.next());
    icons.sort();

    const int cellW = 260, rowH = 64;
    const int columns = 2;
    const int rows = (int(icons.size()) + columns - 1) / columns;
    QImage sheet(cellW * columns, rowH * rows, QImage::Format_ARGB32_Premultiplied);
    sheet.fill(Qt::white);
    QPainter p(&sheet);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor light(0xf4, 0xf6, 0xf8), dark(0x2b, 0x2f, 0x36);
    for (int i = 0; i < icons.size(); ++i) {
        const int x = (i % columns) * cellW, y = (i / columns) * rowH;
        QSvgRenderer r(resourceDir + QLatin1Char('/') + icons.at(i));
        p.fillRect(x, y, 130, rowH, light);
        p.fillRect(x + 130, y, 130, rowH, dark);
        for (int half = 0; half < 2; ++half) {
            const int bx = x + half * 130;
            r.render(&p, QRectF(bx + 6, y + 6, 24, 24));
            r.render(&p, QRectF(bx + 40, y + 6, 48, 48));
        }
        p.setPen(Qt::gray);
        QFont f = p.font();
        f.setPixelSize(9);
        p.setFont(f);
        p.drawText(QRect(x + 92, y + 2, 36, rowH - 4), Qt::AlignRight | Qt::AlignBottom | Qt::TextWrapAnywhere,
                   QFileInfo(icons.at(i)).completeBaseName().left(18));
    }
    p.end();
    return sheet.save(outFile);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Generates the PNG, ICO and WAV assets of the resource collection."));
    parser.addHelpOption();
    QCommandLineOption sheetOption(QStringLiteral("contact-sheet"),
                                   QStringLiteral("Only render every SVG icon of <output> into <file>."),
                                   QStringLiteral("file"));
    parser.addOption(sheetOption);
    QCommandLineOption projectOption(QStringLiteral("project-output"),
                                     QStringLiteral("Also render the demo's project images into <dir>."),
                                     QStringLiteral("dir"));
    parser.addOption(projectOption);
    parser.addPositionalArgument(QStringLiteral("sources"), QStringLiteral("Folder of the SVG sources."));
    parser.addPositionalArgument(QStringLiteral("output"), QStringLiteral("Resource folder to write into."));
    parser.process(app);
    const QStringList args = parser.positionalArguments();
    if (args.size() != 2)
        parser.showHelp(2);
    const QDir sources(args.at(0));
    const QDir output(args.at(1));

    if (parser.isSet(sheetOption))
        return contactSheet(output.absolutePath(), parser.value(sheetOption)) ? 0 : 1;

    bool ok = true;
    const auto renderJob = [&sources](const PngJob& job, const QDir& into) {
        QImage image = renderSvg(sources.filePath(QLatin1String(job.source)), QSize(job.width, job.height));
        if (image.isNull())
            return false;
        if (job.opaque)
            image = image.convertToFormat(QImage::Format_RGB32);
        return writeFile(into.filePath(QLatin1String(job.output)), pngBytes(image));
    };
    for (const PngJob& job : kPngJobs)
        ok = renderJob(job, output) && ok;
    ok = writeFile(output.filePath(QLatin1String(kIcoOutput)),
                   icoBytes(sources.filePath(QLatin1String(kIcoSource)), {256, 48, 32, 16}))
         && ok;
    for (const Sound& sound : sounds())
        ok = writeFile(output.filePath(QLatin1String(sound.file)), wavBytes(synthesise(sound.tones))) && ok;
    if (parser.isSet(projectOption)) {
        const QDir projectDir(parser.value(projectOption));
        for (const PngJob& job : kProjectJobs)
            ok = renderJob(job, projectDir) && ok;
    }
    return ok ? 0 : 1;
}
