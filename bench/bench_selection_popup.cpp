// The searchable popup with 100,000 items: one keystroke at a time, against a plain
// QSortFilterProxyModel (fixed string, case-insensitive) under a QListView in the same run.
#include <orv_selection_popup.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QListView>
#include <QRandomGenerator>
#include <QSortFilterProxyModel>
#include <QStringListModel>

#include <cstdio>
#include <functional>

using namespace OrvWidgets;

namespace {

double ms(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    QCoreApplication::processEvents(); // the views lay out what changed
    return timer.nsecsElapsed() / 1e6;
}

QStringList names(int count)
{
    static const char* const parts[] = {"tan", "go", "ber", "lin", "zü",  "rich", "mar", "ko",
                                        "and", "ré", "lu",  "ka",  "tor", "sen",  "vik", "ha"};
    QRandomGenerator random(100000);
    QStringList list;
    list.reserve(count);
    for (int i = 0; i < count; ++i) {
        QString name;
        for (int p = 0; p < 3; ++p)
            name += QString::fromUtf8(parts[random.bounded(16)]);
        name[0] = name[0].toUpper();
        list << name + QStringLiteral(" %1").arg(i);
    }
    return list;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int count = 100000;
    QStringListModel model(names(count));

    OrvSelectionPopup popup;
    const double setModel = ms([&] { popup.setModel(&model); });
    popup.resize(320, 400);
    popup.show();

    QSortFilterProxyModel plainProxy;
    plainProxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    const double plainSet = ms([&] { plainProxy.setSourceModel(&model); });
    QListView plainView;
    plainView.setUniformItemSizes(true);
    plainView.setModel(&plainProxy);
    plainView.resize(320, 400);
    plainView.show();
    QCoreApplication::processEvents();

    std::printf("%d items\n", count);
    std::printf("%-28s OrvSelectionPopup %8.2f ms  QSortFilterProxyModel %8.2f ms  ratio %5.2f\n", "set the model",
                setModel, plainSet, plainSet > 0 ? setModel / plainSet : 0.0);
    const QStringList steps = {QStringLiteral("t"),
                               QStringLiteral("ta"),
                               QStringLiteral("tan"),
                               QStringLiteral("tang"),
                               QStringLiteral("tan"),
                               QStringLiteral("ta"),
                               QString(),
                               QStringLiteral("zu"),
                               QStringLiteral("zur")};
    for (const QString& text : steps) {
        const double orv = ms([&] { popup.setFilterText(text); });
        const double plain = ms([&] { plainProxy.setFilterFixedString(text); });
        std::printf(
            "keystroke to %-15s OrvSelectionPopup %8.2f ms  QSortFilterProxyModel %8.2f ms  ratio %5.2f  (%d rows)\n",
            qPrintable(QLatin1Char('"') + text + QLatin1Char('"')), orv, plain, plain > 0 ? orv / plain : 0.0,
            popup.visibleCount());
    }
    std::printf("(\"zu\" and \"zur\" also find \"Zürich\" parts in the popup only: it ignores accents)\n");
    return 0;
}
