// First show of a page with 2,000 input widgets (change detection is wired on
// the first show) against the same widgets in a plain QWidget, both inside a
// scroll area of the same size and built in the same order (a page sits in its
// frame's scroll area before its constructor fills it).

#include <orv_dialog.h>
#include <orv_dialog_helper.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QtWidgets>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace OrvWidgets;

namespace {

constexpr int kWidgets = 2000;
constexpr int kColumns = 20;
constexpr int kRepetitions = 15;
const QSize kWindowSize(1280, 900);

void populate(QWidget* parent)
{
    auto* grid = new QGridLayout(parent);
    for (int i = 0; i < kWidgets; ++i) {
        QWidget* w = nullptr;
        switch (i % 10) {
        case 0: w = new QLineEdit(QString::number(i), parent); break;
        case 1: {
            auto* combo = new QComboBox(parent);
            combo->addItems({"alpha", "bravo", "charlie"});
            w = combo;
            break;
        }
        case 2: w = new QCheckBox(QStringLiteral("check"), parent); break;
        case 3: w = new QSpinBox(parent); break;
        case 4: w = new QDoubleSpinBox(parent); break;
        case 5: w = new QSlider(Qt::Horizontal, parent); break;
        case 6: w = new QPlainTextEdit(parent); break;
        case 7: w = new QTextEdit(parent); break;
        case 8: w = new QPushButton(QStringLiteral("push"), parent); break;
        default: w = new QDateTimeEdit(parent); break;
        }
        grid->addWidget(w, i / kColumns, i % kColumns);
    }
}

class BenchPage : public OrvDialog
{
public:
    BenchPage()
    {
        populate(this);
        retranslate();
    }
    void retranslate() override { translate(QStringLiteral("Bench")); }
};

qint64 showAndSettle(QWidget* window)
{
    QElapsedTimer timer;
    timer.start();
    window->show();
    QCoreApplication::processEvents();
    return timer.nsecsElapsed();
}

qint64 firstShowPage()
{
    auto* page = new BenchPage;
    OrvDialogHelper* frame = page->getHelper();
    frame->resize(kWindowSize);
    QCoreApplication::processEvents();
    const qint64 ns = showAndSettle(frame);
    delete frame;
    return ns;
}

qint64 firstShowPlain()
{
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    auto* plain = new QWidget;
    // Same order as a page: into the scroll area first, then filled.
    area->setWidget(plain);
    populate(plain);
    area->resize(kWindowSize);
    QCoreApplication::processEvents();
    const qint64 ns = showAndSettle(area);
    delete area;
    return ns;
}

double medianMs(std::vector<qint64> samples)
{
    std::sort(samples.begin(), samples.end());
    return samples[samples.size() / 2] / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("qt.svg.warning=false\nqt.qpa.*=false"));

    // One warm-up round each: styles, fonts and caches are loaded once.
    firstShowPlain();
    firstShowPage();

    std::vector<qint64> plain, page;
    for (int i = 0; i < kRepetitions; ++i) {
        plain.push_back(firstShowPlain());
        page.push_back(firstShowPage());
    }
    const double plainMs = medianMs(plain);
    const double pageMs = medianMs(page);
    std::printf("widgets: %d, repetitions: %d (median)\n", kWidgets, kRepetitions);
    std::printf("plain QWidget first show: %.2f ms\n", plainMs);
    std::printf("OrvDialog first show:     %.2f ms\n", pageMs);
    std::printf("first-show ratio: %.2fx (target <= 1.5x)\n", pageMs / plainMs);
    return 0;
}
