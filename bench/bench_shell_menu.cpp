// Registers N menu entries over 4 exercise parts and 20 groups, then opens N/10
// pages by clicking their buttons; prints the time per entry and per page for
// N = 250, 500, 1000 and how the cost grows (linear growth gives 4.0).

#include <orv_base_layout_widget.h>
#include <orv_dialog.h>
#include <orv_drag_icon.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace OrvWidgets;

namespace {

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

    QElapsedTimer timer;
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
    for (int i = 0; i < pages; ++i)
        Q_EMIT buttons[size_t(i) * 10]->clicked();
    QCoreApplication::processEvents();
    const qint64 open_ns = timer.nsecsElapsed();
    return {register_ns / 1000.0 / n, open_ns / 1000.0 / pages};
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    const int sizes[] = {250, 500, 1000};
    Result best[3];
    for (int s = 0; s < 3; ++s) {
        // Median of three runs per size.
        std::vector<Result> runs;
        for (int r = 0; r < 3; ++r)
            runs.push_back(run(sizes[s]));
        std::sort(runs.begin(), runs.end(), [](const Result& a, const Result& b) { return a.perEntryUs < b.perEntryUs; });
        best[s].perEntryUs = runs[1].perEntryUs;
        std::sort(runs.begin(), runs.end(), [](const Result& a, const Result& b) { return a.perPageUs < b.perPageUs; });
        best[s].perPageUs = runs[1].perPageUs;
        std::printf("N=%4d: %8.1f us per entry, %8.1f us per page\n", sizes[s], best[s].perEntryUs,
                    best[s].perPageUs);
    }
    // Totals grow by N: time(1000)/time(250) = 4 x per-item ratio.
    const double entryGrowth = 4.0 * best[2].perEntryUs / best[0].perEntryUs;
    const double pageGrowth = 4.0 * best[2].perPageUs / best[0].perPageUs;
    std::printf("time(1000)/time(250): entries %.2f, pages %.2f (linear: 4.0, target <= 4.5)\n", entryGrowth,
                pageGrowth);
    return 0;
}
