// Random mutations of source model and filters with a sort active; after every
// step the proxy must show exactly the rows, in exactly the order, of a plain
// proxy that applies the filter and order rules literally and is told of every
// filter change the same way.
#include <orv_column_filter_proxy_model.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QtTest>

using namespace OrvWidgets;

namespace {

constexpr int DataRole = Qt::UserRole + 17;
constexpr int Columns = 3;

// Column 0 holds numbers only, column 1 words only, column 2 a mix of both
// whose pairwise order is no consistent order at all.
const QStringList kNumbers{"7", "12", "-3", "2.5", "100", "1e1", "0", "9", "-0", "7.0"};
const QStringList kWords{"alpha", "Alpine", "beta", "Gamma", "delta", "al", "b", "Ärger", "beta"};
const QStringList kMixed{"a1", "10", "9", "Alpha", "x-2", "", "3.0", "b", "nan"};
const QVariantList kCodes{QVariant(), QStringLiteral("x"), QStringLiteral("y"), 1, QStringLiteral("1"), 2};
const QStringList kPatterns{"", "a", "al", "alp", "AL", "^b", "(", "1", "a|e", "a$", "l.h", "9", "e",
                            "al.h", "a(l)?p", "e+t", "l{1,2}p", "b.*a", "[ab]l\\w"};
const QVariantList kDataFilters{QVariant(), QStringLiteral("x"), QStringLiteral("1"), 1, 2, QStringLiteral("")};

bool referenceAccepts(const QAbstractItemModel& model, int row,
                      const QHash<int, QRegularExpression>& patterns, const QHash<int, QVariant>& data)
{
    for (auto it = data.cbegin(); it != data.cend(); ++it) {
        if (!(QVariant(model.index(row, it.key()).data(DataRole).toString()) == it.value()))
            return false;
    }
    for (auto it = patterns.cbegin(); it != patterns.cend(); ++it) {
        const QRegularExpression& expression = it.value();
        if (expression.isValid() && !expression.match(model.index(row, it.key()).data().toString()).hasMatch())
            return false;
    }
    return true;
}

bool referenceLess(const QString& a, const QString& b)
{
    bool aNumber = false, bNumber = false;
    const double x = a.toDouble(&aNumber), y = b.toDouble(&bNumber);
    return aNumber && bNumber ? x < y : QString::compare(a, b) < 0;
}

class ReferenceProxy : public QSortFilterProxyModel
{
public:
    QHash<int, QRegularExpression> patterns;
    QHash<int, QVariant> data;
    // Large tables rebuild the mapping on a filter change, small ones update it.
    void filtersChanged() { sourceModel()->rowCount() > 10000 ? invalidate() : invalidateRowsFilter(); }
protected:
    bool filterAcceptsRow(int row, const QModelIndex&) const override
    {
        return referenceAccepts(*sourceModel(), row, patterns, data);
    }
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return referenceLess(left.data().toString(), right.data().toString());
    }
};

QList<int> order(const QSortFilterProxyModel& proxy)
{
    QList<int> rows;
    for (int row = 0; row < proxy.rowCount(); ++row)
        rows << proxy.mapToSource(proxy.index(row, 0)).row();
    return rows;
}

} // namespace

class tst_OrvColumnFilterProxyModelRandom : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void randomMutations_data();
    void randomMutations();
};

void tst_OrvColumnFilterProxyModelRandom::randomMutations_data()
{
    QTest::addColumn<int>("initialRows");
    QTest::addColumn<int>("steps");
    QTest::newRow("small table") << 40 << 1500;
    QTest::newRow("large table") << 10050 << 60; // filter changes rebuild the mapping
}

void tst_OrvColumnFilterProxyModelRandom::randomMutations()
{
    QFETCH(int, initialRows);
    QFETCH(int, steps);
    QRandomGenerator random(20261121);
    auto pick = [&random](const auto& list) { return list.at(random.bounded(int(list.size()))); };
    QStandardItemModel model;
    auto makeRow = [&]() {
        QList<QStandardItem*> items{new QStandardItem(pick(kNumbers)), new QStandardItem(pick(kWords)),
                                    new QStandardItem(pick(kMixed))};
        for (QStandardItem* item : items)
            item->setData(pick(kCodes), DataRole);
        return items;
    };
    auto refill = [&](int rows) {
        model.clear();
        model.setColumnCount(Columns);
        for (int i = 0; i < rows; ++i)
            model.appendRow(makeRow());
    };
    refill(initialRows);

    OrvColumnFilterProxyModel proxy;
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(&model);
    proxy.sort(0);
    ReferenceProxy reference;
    reference.setSourceModel(&model);
    reference.sort(0);

    QHash<int, QString> patterns;
    QHash<int, QVariant> data;
    for (int step = 0; step < steps; ++step) {
        const int column = random.bounded(Columns);
        QString action;
        switch (random.bounded(9)) {
        case 0: {
            const int row = random.bounded(model.rowCount() + 1);
            const int count = 1 + random.bounded(3);
            for (int i = 0; i < count; ++i)
                model.insertRow(row, makeRow());
            action = QStringLiteral("insert %1 at %2").arg(count).arg(row);
            break;
        }
        case 1:
            if (model.rowCount() > 0) {
                const int row = random.bounded(model.rowCount());
                const int count = 1 + random.bounded(std::min(3, model.rowCount() - row));
                model.removeRows(row, count);
                action = QStringLiteral("remove %1 at %2").arg(count).arg(row);
            }
            break;
        case 2:
        case 3:
            if (model.rowCount() > 0) {
                QStandardItem* item = model.item(random.bounded(model.rowCount()), column);
                const QStringList& texts = column == 0 ? kNumbers : column == 1 ? kWords : kMixed;
                if (random.bounded(2))
                    item->setText(pick(texts));
                else
                    item->setData(pick(kCodes), DataRole);
                action = QStringLiteral("change %1").arg(item->index().row());
            }
            break;
        case 4:
            if (random.bounded(10) == 0) {
                refill(initialRows < 100 ? random.bounded(60) : initialRows + random.bounded(60));
                action = QStringLiteral("reset");
            }
            break;
        case 5:
        case 6: {
            // Mostly typing: extend or shorten the current pattern.
            QString pattern = pick(kPatterns);
            const QString current = patterns.value(column);
            if (random.bounded(2) && !current.isEmpty())
                pattern = random.bounded(2) ? current.chopped(1) : current + pick(QStringList{"l", "a", "p"});
            proxy.setColumnStringFilter(pattern, column);
            if (pattern.isEmpty())
                patterns.remove(column);
            else
                patterns.insert(column, pattern);
            action = QStringLiteral("pattern %1 on %2").arg(pattern).arg(column);
            break;
        }
        case 7: {
            const QVariant value = pick(kDataFilters);
            proxy.setColumnDataFilter(value, column);
            if (value.isNull())
                data.remove(column);
            else if (!(data.value(column) == value) || !data.contains(column))
                data.insert(column, value);
            action = QStringLiteral("data %1 on %2").arg(value.toString()).arg(column);
            break;
        }
        case 8: {
            const int sortColumn = random.bounded(Columns);
            const Qt::SortOrder order = random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder;
            proxy.sort(sortColumn, order);
            reference.sort(sortColumn, order);
            action = QStringLiteral("sort %1 %2").arg(sortColumn).arg(int(order));
            break;
        }
        }

        QHash<int, QRegularExpression> expressions;
        for (auto it = patterns.cbegin(); it != patterns.cend(); ++it)
            expressions.insert(it.key(), QRegularExpression(it.value(), QRegularExpression::CaseInsensitiveOption));
        if (expressions != reference.patterns || data != reference.data) {
            reference.patterns = expressions;
            reference.data = data;
            reference.filtersChanged();
        }
        QVERIFY2(order(proxy) == order(reference), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(action)));
    }
}

QTEST_MAIN(tst_OrvColumnFilterProxyModelRandom)
#include "tst_orv_column_filter_proxy_model_random.moc"
