// Registers N menu entries over 4 exercise parts and 20 groups, then opens N/10
// pages by clicking their buttons; prints the time per entry and per page for
// N = 250, 500, 1000, the same against plain Qt widgets, and how the cost grows
// (linear growth gives 4.0). Times are the thread's CPU time.

#include <orv_base_layout_widget.h>
#include <orv_dialog.h>
#include <orv_drag_icon.h>

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBox>
#include <QToolButton>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace OrvWidgets;

namespace {

// CPU time of this thread: other processes on a busy machine do not count.
class CpuTimer
{
public:
    void start() { m_start = now(); }
    void restart() { m_start = now(); }
    qint64 nsecsElapsed() const { return now() - m_start; }

private:
    static qint64 now()
    {
        timespec ts{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
        return qint64(ts.tv_sec) * 1000000000 + ts.tv_nsec;
    }
    qint64 m_start = 0;
};

// Entry i lies in group i % 20. Every tenth entry, shifted by i % 10, so that the
// pages spread over all groups as an operator's do; a plain stride of ten would
// pile them into two groups (one tab bar of N/20 tabs each, which Qt lays out
// again in full on every insertion).
size_t pageEntry(int i)
{
    return size_t(i) * 10 + size_t(i % 10);
}

class Page : public OrvDialog
{
public:
    Page() : OrvDialog(nullptr, OkApplyCancel, true) { new QLineEdit(this); }
    void retranslate() override { translate(QStringLiteral("Page")); }
};

struct Result
{
    double perEntryUs;
    double perPageUs;
};

Result run(int n)
{
    OrvBaseLayoutWidget shell(nullptr, true);
    shell.resize(1600, 1000);
    shell.show();
    QCoreApplication::processEvents();

    CpuTimer timer;
    timer.start();
    std::vector<OrvDragIcon*> buttons;
    buttons.reserve(n);
    for (int i = 0; i < n; ++i) {
        PluginData data(QStringLiteral("Entry %1").arg(i), QStringLiteral("Group %1").arg(i % 20),
                        QStringLiteral("entry%1").arg(i), [](QWidget*) -> OrvDialog* { return new Page; }, 0,
                        ExercisePart((i % 20) / 5));
        buttons.push_back(shell.addMenuAction(data, false));
    }
    QCoreApplication::processEvents();
    const qint64 register_ns = timer.nsecsElapsed();

    timer.restart();
    const int pages = n / 10;
    // Each click is followed by the event loop, as when an operator clicks.
    for (int i = 0; i < pages; ++i) {
        Q_EMIT buttons[pageEntry(i)]->clicked();
        QCoreApplication::processEvents();
    }
    const qint64 open_ns = timer.nsecsElapsed();
    return {register_ns / 1000.0 / n, open_ns / 1000.0 / pages};
}

// The same work with plain Qt: four tool boxes of 20 groups each holding a grid
// of tool buttons, and a tab widget that opens a page per click (a page already
// open comes to front).
Result runPlain(int n)
{
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* tabs = new QTabWidget;
    auto* parts = new QStackedWidget;
    layout->addWidget(tabs, 1);
    layout->addWidget(parts);
    QToolBox* boxes[4];
    for (QToolBox*& box : boxes) {
        box = new QToolBox;
        parts->addWidget(box);
    }
    window.resize(1600, 1000);
    window.show();
    QCoreApplication::processEvents();

    CpuTimer timer;
    timer.start();
    QHash<QString, QGridLayout*> groups;
    QHash<QString, QWidget*> open;
    std::vector<QToolButton*> buttons;
    buttons.reserve(n);
    for (int i = 0; i < n; ++i) {
        const QString group = QStringLiteral("Group %1").arg(i % 20);
        QGridLayout*& grid = groups[group];
        if (!grid) {
            auto* page = new QWidget;
            grid = new QGridLayout(page);
            boxes[(i % 20) / 5]->addItem(page, group);
        }
        auto* button = new QToolButton;
        button->setText(QStringLiteral("Entry %1").arg(i));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        const QString identifier = QStringLiteral("entry%1").arg(i);
        QObject::connect(button, &QToolButton::clicked, tabs, [tabs, &open, identifier] {
            if (QWidget* page = open.value(identifier)) {
                tabs->setCurrentWidget(page);
                return;
            }
            auto* page = new QWidget;
            new QLineEdit(page);
            open.insert(identifier, page);
            tabs->setCurrentIndex(tabs->addTab(page, identifier));
        });
        const int count = grid->count();
        grid->addWidget(button, count / 2, count % 2);
        buttons.push_back(button);
    }
    QCoreApplication::processEvents();
    const qint64 register_ns = timer.nsecsElapsed();

    timer.restart();
    const int pages = n / 10;
    for (int i = 0; i < pages; ++i) {
        buttons[pageEntry(i)]->click();
        QCoreApplication::processEvents();
    }
    const qint64 open_ns = timer.nsecsElapsed();
    return {register_ns / 1000.0 / n, open_ns / 1000.0 / pages};
}

int g_runs = 3;

// Median of the runs, per figure.
Result median(Result (*runner)(int), int n)
{
    std::vector<Result> runs;
    for (int r = 0; r < g_runs; ++r)
        runs.push_back(runner(n));
    Result result{};
    std::sort(runs.begin(), runs.end(), [](const Result& a, const Result& b) { return a.perEntryUs < b.perEntryUs; });
    result.perEntryUs = runs[runs.size() / 2].perEntryUs;
    std::sort(runs.begin(), runs.end(), [](const Result& a, const Result& b) { return a.perPageUs < b.perPageUs; });
    result.perPageUs = runs[runs.size() / 2].perPageUs;
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    // --runs R: runs per figure (for profilers, which slow everything down).
    const QStringList args = QCoreApplication::arguments();
    const int runsAt = int(args.indexOf(QStringLiteral("--runs")));
    if (runsAt > 0 && runsAt + 1 < args.size())
        g_runs = qMax(1, args.at(runsAt + 1).toInt());
    // The shell's debug lines would be measured too.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\ndefault.warning=false"));
    const int sizes[] = {250, 500, 1000};
    Result best[3];
    run(100); // warm-up: fonts, styles, first allocations
    runPlain(100);
    for (int s = 0; s < 3; ++s) {
        best[s] = median(run, sizes[s]);
        const Result plain = median(runPlain, sizes[s]);
        std::printf("N=%4d: %8.1f us per entry (plain Qt %6.1f, ratio %5.2f), %8.1f us per page (plain Qt %7.1f, "
                    "ratio %5.2f)\n",
                    sizes[s], best[s].perEntryUs, plain.perEntryUs, best[s].perEntryUs / plain.perEntryUs,
                    best[s].perPageUs, plain.perPageUs, best[s].perPageUs / plain.perPageUs);
    }
    // Totals grow by N: time(1000)/time(250) = 4 x per-item ratio.
    const double entryGrowth = 4.0 * best[2].perEntryUs / best[0].perEntryUs;
    const double pageGrowth = 4.0 * best[2].perPageUs / best[0].perPageUs;
    std::printf("time(1000)/time(250): entries %.2f, pages %.2f (linear: 4.0, target <= 4.5)\n", entryGrowth,
                pageGrowth);
    return 0;
}
