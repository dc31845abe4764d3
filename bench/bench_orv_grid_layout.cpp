// Grid of menu buttons: filling, re-flowing and emptying a large group, each against
// the plain QGridLayout doing the nearest equivalent work in the same run.
#include <orv_grid_layout.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QWidget>

#include <cstdio>
#include <functional>

using namespace OrvWidgets;

namespace {

QWidget* button(QWidget* parent)
{
    auto* w = new QWidget(parent);
    w->setFixedSize(40, 40);
    return w;
}

double ms(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.nsecsElapsed() / 1e6;
}

void report(const char* what, int n, double orv, double plain)
{
    std::printf("%-34s n=%5d  OrvGridLayout %9.3f ms  QGridLayout %9.3f ms  ratio %6.2f\n", what, n, orv, plain,
                plain > 0 ? orv / plain : 0.0);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    for (int n : {100, 500, 2000}) {
        QWidget orvPage, plainPage;
        auto* orv = new OrvGridLayout(eDefault, &orvPage, 3);
        auto* plain = new QGridLayout(&plainPage);
        QList<QWidget*> orvButtons, plainButtons;
        for (int i = 0; i < n; ++i) {
            orvButtons.append(button(&orvPage));
            plainButtons.append(button(&plainPage));
        }

        const double fillOrv = ms([&] {
            for (QWidget* w : orvButtons)
                orv->add_widget(w);
        });
        const double fillPlain = ms([&] {
            for (int i = 0; i < n; ++i)
                plain->addWidget(plainButtons.at(i), i / 3, i % 3);
        });
        report("fill, 3 columns", n, fillOrv, fillPlain);

        // Re-flow to 4 columns; the plain layout is filled once more from scratch.
        QWidget freshPage;
        QList<QWidget*> fresh;
        for (int i = 0; i < n; ++i)
            fresh.append(button(&freshPage));
        const double flowOrv = ms([&] { orv->setMaxColumn(4); });
        const double flowPlain = ms([&] {
            auto* grid = new QGridLayout(&freshPage);
            for (int i = 0; i < n; ++i)
                grid->addWidget(fresh.at(i), i / 4, i % 4);
        });
        report("re-flow to 4 columns", n, flowOrv, flowPlain);

        const double dropOrv = ms([&] { qDeleteAll(orvButtons); });
        const double dropPlain = ms([&] { qDeleteAll(plainButtons); });
        report("destroy every button, one by one", n, dropOrv, dropPlain);
    }
    return 0;
}
