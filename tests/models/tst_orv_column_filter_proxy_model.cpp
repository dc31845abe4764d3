#include <orv_column_filter_proxy_model.h>

#include <QAbstractItemModelTester>
#include <QStandardItemModel>
#include <QtTest>

using namespace OrvWidgets;

using Filters = QList<QPair<int, QVariant>>;

namespace {

constexpr int DataRole = Qt::UserRole + 17;

// Counts filter evaluations: a re-filter evaluates every source row again.
class CountingProxy : public OrvColumnFilterProxyModel
{
public:
    mutable int evaluations = 0;
    QStringList setterCalls;

    void setColumnStringFilter(const QString& pattern, int column) override
    {
        setterCalls << QStringLiteral("string %1 %2").arg(pattern).arg(column);
        OrvColumnFilterProxyModel::setColumnStringFilter(pattern, column);
    }
    void setColumnDataFilter(const QVariant& value, int column) override
    {
        setterCalls << QStringLiteral("data %1 %2").arg(value.toString()).arg(column);
        OrvColumnFilterProxyModel::setColumnDataFilter(value, column);
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        ++evaluations;
        return OrvColumnFilterProxyModel::filterAcceptsRow(row, parent);
    }
};

// Rows: display texts of columns 0..2 and the role-273 data of column 3.
struct Row
{
    QString c0, c1, c2;
    QVariant code;
};

const QList<Row> kRows = {
    {"10", "x", "apple", 5},                 // 0
    {"9", "y", "Avocado", QStringLiteral("5")}, // 1
    {"abc", "x", "banana", QStringLiteral("k")},// 2
    {"b", "z", "cherry", 7},                  // 3
    {"2.5", "y", "a", QVariant()},           // 4
    {"-1", "x", "Papaya", QStringLiteral("K")}, // 5
};

void fill(QStandardItemModel& model)
{
    model.setColumnCount(4);
    for (const Row& r : kRows) {
        QList<QStandardItem*> items{new QStandardItem(r.c0), new QStandardItem(r.c1),
                                    new QStandardItem(r.c2), new QStandardItem()};
        items[3]->setData(r.code, DataRole);
        model.appendRow(items);
    }
}

QList<int> sourceRowsInOrder(const QSortFilterProxyModel& proxy)
{
    QList<int> rows;
    for (int i = 0; i < proxy.rowCount(); ++i)
        rows << proxy.mapToSource(proxy.index(i, 0)).row();
    return rows;
}

QList<int> visibleSourceRows(const QSortFilterProxyModel& proxy)
{
    QList<int> rows = sourceRowsInOrder(proxy);
    std::sort(rows.begin(), rows.end());
    return rows;
}

} // namespace

class tst_OrvColumnFilterProxyModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void filters_data();
    void filters();
    void invalidation_data();
    void invalidation();
    void slotsUseVirtualSetters();
    void lessThan_data();
    void lessThan();
    void sortsNumbersAsNumbers();
    void orderMatchesPairwiseRule_data();
    void orderMatchesPairwiseRule();
    void literalMatchingAgreesWithExpressions();
};

void tst_OrvColumnFilterProxyModel::filters_data()
{
    QTest::addColumn<Filters>("stringFilters");
    QTest::addColumn<Filters>("dataFilters");
    QTest::addColumn<QList<int>>("expected");

    const QList<int> all{0, 1, 2, 3, 4, 5};
    QTest::newRow("none") << Filters{} << Filters{} << all;
    QTest::newRow("caret a on column 2") << Filters{{2, "^a"}} << Filters{} << QList<int>{0, 1, 4};
    QTest::newRow("contains anywhere, any case") << Filters{{2, "AP"}} << Filters{} << QList<int>{0, 5};
    QTest::newRow("expression") << Filters{{2, "an+a$"}} << Filters{} << QList<int>{2};
    QTest::newRow("alternation") << Filters{{1, "y|z"}} << Filters{} << QList<int>{1, 3, 4};
    QTest::newRow("expression with literal") << Filters{{2, "AN.n"}} << Filters{} << QList<int>{2};
    QTest::newRow("optional letter") << Filters{{2, "apx?"}} << Filters{} << QList<int>{0, 5};
    QTest::newRow("optional group") << Filters{{2, "(x)?err"}} << Filters{} << QList<int>{3};
    QTest::newRow("counted repetition") << Filters{{2, "AP{1,2}LE"}} << Filters{} << QList<int>{0};
    QTest::newRow("invalid filters nothing") << Filters{{2, "("}} << Filters{} << all;
    QTest::newRow("invalid beside valid") << Filters{{2, "("}, {1, "x"}} << Filters{} << QList<int>{0, 2, 5};
    QTest::newRow("and across columns") << Filters{{1, "x"}, {2, "p"}} << Filters{} << QList<int>{0, 5};
    QTest::newRow("negative column ignored") << Filters{{-1, "zzz"}} << Filters{{-2, "q"}} << all;
    QTest::newRow("data string") << Filters{} << Filters{{3, "k"}} << QList<int>{2};
    QTest::newRow("data int 5 equals cell text 5") << Filters{} << Filters{{3, 5}} << QList<int>{0, 1};
    QTest::newRow("data string 5") << Filters{} << Filters{{3, "5"}} << QList<int>{0, 1};
    QTest::newRow("data empty string matches empty cell") << Filters{} << Filters{{3, ""}} << QList<int>{4};
    QTest::newRow("data and string") << Filters{{2, "a"}} << Filters{{3, "5"}} << QList<int>{0, 1};
    QTest::newRow("both kinds on one column") << Filters{{3, "x"}} << Filters{{3, "5"}} << QList<int>{};
    QTest::newRow("data on column without data") << Filters{} << Filters{{0, "10"}} << QList<int>{};
}

void tst_OrvColumnFilterProxyModel::filters()
{
    QFETCH(Filters, stringFilters);
    QFETCH(Filters, dataFilters);
    QFETCH(QList<int>, expected);

    QStandardItemModel model;
    fill(model);
    OrvColumnFilterProxyModel proxy;
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(&model);
    for (const auto& f : stringFilters)
        proxy.setColumnStringFilter(f.second.toString(), f.first);
    for (const auto& f : dataFilters)
        proxy.setColumnDataFilter(f.second, f.first);
    QCOMPARE(visibleSourceRows(proxy), expected);
    QVERIFY(!proxy.columnStringFilters().contains(-1));

    // Edited cells are judged by their new contents: every row takes the next one's texts.
    for (int column = 0; column < 3; ++column) {
        const QString first = model.item(0, column)->text();
        for (int row = 0; row < model.rowCount(); ++row)
            model.item(row, column)->setText(row + 1 < model.rowCount() ? model.item(row + 1, column)->text() : first);
    }
    QList<int> shifted;
    for (int row : expected)
        shifted << (row + model.rowCount() - 1) % model.rowCount();
    std::sort(shifted.begin(), shifted.end());
    if (dataFilters.isEmpty())
        QCOMPARE(visibleSourceRows(proxy), shifted);
    QVERIFY(!proxy.columnDataFilters().contains(-2));

    // Removing every filter shows every row again.
    for (const auto& f : stringFilters)
        proxy.setColumnStringFilter(QString(), f.first);
    for (const auto& f : dataFilters)
        proxy.setColumnDataFilter(QVariant(), f.first);
    QCOMPARE(proxy.rowCount(), model.rowCount());
}

void tst_OrvColumnFilterProxyModel::invalidation_data()
{
    // Steps: "s<column>:<pattern>" or "d<column>:<value>" ("d1:" = null, "d1:#5" = int 5).
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QList<bool>>("invalidates");

    QTest::newRow("same pattern twice") << QStringList{"s2:^a", "s2:^a"} << QList<bool>{true, false};
    QTest::newRow("changed pattern") << QStringList{"s2:^a", "s2:^b", "s2:^bx"} << QList<bool>{true, true, true};
    QTest::newRow("clear without filter") << QStringList{"s2:"} << QList<bool>{false};
    QTest::newRow("clear existing") << QStringList{"s2:a", "s2:", "s2:"} << QList<bool>{true, true, false};
    QTest::newRow("invalid pattern stored once") << QStringList{"s1:(", "s1:("} << QList<bool>{true, false};
    QTest::newRow("negative column") << QStringList{"s-1:a", "d-1:x"} << QList<bool>{false, false};
    QTest::newRow("same data twice") << QStringList{"d3:k", "d3:k"} << QList<bool>{true, false};
    QTest::newRow("equal data of other type") << QStringList{"d3:#5", "d3:5"} << QList<bool>{true, false};
    QTest::newRow("null data without filter") << QStringList{"d3:"} << QList<bool>{false};
    QTest::newRow("null data removes") << QStringList{"d3:k", "d3:", "d3:"} << QList<bool>{true, true, false};
    QTest::newRow("kinds are independent") << QStringList{"s3:a", "d3:a", "s3:"} << QList<bool>{true, true, true};
}

void tst_OrvColumnFilterProxyModel::invalidation()
{
    QFETCH(QStringList, steps);
    QFETCH(QList<bool>, invalidates);

    QStandardItemModel model;
    fill(model);
    CountingProxy proxy;
    proxy.setSourceModel(&model);
    QCOMPARE(proxy.rowCount(), model.rowCount()); // builds the mapping

    for (int i = 0; i < steps.size(); ++i) {
        const QString& step = steps.at(i);
        const int colon = step.indexOf(QLatin1Char(':'));
        const int column = step.mid(1, colon - 1).toInt();
        const QString arg = step.mid(colon + 1);
        proxy.evaluations = 0;
        if (step.startsWith(QLatin1Char('s'))) {
            proxy.setColumnStringFilter(arg, column);
        } else {
            const QVariant value = arg.isEmpty() ? QVariant()
                                   : arg.startsWith(QLatin1Char('#')) ? QVariant(arg.mid(1).toInt())
                                                                      : QVariant(arg);
            proxy.setColumnDataFilter(value, column);
        }
        proxy.rowCount(); // large tables re-filter on the next access
        QVERIFY2((proxy.evaluations >= model.rowCount()) == invalidates.at(i), qPrintable(step));
        if (!invalidates.at(i))
            QCOMPARE(proxy.evaluations, 0);
    }
}

void tst_OrvColumnFilterProxyModel::slotsUseVirtualSetters()
{
    CountingProxy proxy;
    QCOMPARE(proxy.sortCaseSensitivity(), Qt::CaseInsensitive);
    QMetaObject::invokeMethod(&proxy, "onSetColumnStringFilter", Q_ARG(QString, "ab"), Q_ARG(int, 2));
    QMetaObject::invokeMethod(&proxy, "onSetColumnDataFilter", Q_ARG(QVariant, QVariant("7")), Q_ARG(int, 3));
    QCOMPARE(proxy.setterCalls, (QStringList{"string ab 2", "data 7 3"}));
    QCOMPARE(proxy.columnStringFilters().value(2),
             QRegularExpression("ab", QRegularExpression::CaseInsensitiveOption));
    QCOMPARE(proxy.columnDataFilters().value(3), QVariant("7"));
}

// Each pair is also checked the other way round: "equal" pairs are less in neither direction.
void tst_OrvColumnFilterProxyModel::lessThan_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<int>("order"); // -1: left < right, 0: neither, 1: right < left

    QTest::newRow("9 < 10") << QVariant("9") << QVariant("10") << -1;
    QTest::newRow("abc < b") << QVariant("abc") << QVariant("b") << -1;
    QTest::newRow("case-sensitive code units") << QVariant("Z") << QVariant("a") << -1;
    QTest::newRow("mixed compares as text") << QVariant("10") << QVariant("9a") << -1;
    QTest::newRow("exponent") << QVariant("1e3") << QVariant("999") << 1;
    QTest::newRow("negative") << QVariant("-2") << QVariant("-1.5") << -1;
    QTest::newRow("numbers as values") << QVariant(9) << QVariant(10.5) << -1;
    QTest::newRow("value and text") << QVariant(100) << QVariant("20") << 1;
    QTest::newRow("value and word") << QVariant(100) << QVariant("abc") << -1;
    QTest::newRow("equal") << QVariant("5") << QVariant("5.0") << 0;
    QTest::newRow("invalid") << QVariant() << QVariant("1") << 0;
    QTest::newRow("no text, no number") << QVariant(QPointF(1, 2)) << QVariant(QPointF(3, 4)) << 0;
}

void tst_OrvColumnFilterProxyModel::lessThan()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    QFETCH(int, order);
    const bool less = order < 0;

    QStandardItemModel model(2, 1);
    model.setData(model.index(0, 0), left);
    model.setData(model.index(1, 0), right);
    OrvColumnFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    QCOMPARE(proxy.lessThan(model.index(0, 0), model.index(1, 0)), less);
    QCOMPARE(proxy.lessThan(model.index(1, 0), model.index(0, 0)), order > 0);

    // The same pair as children of a row, and again after the cells changed places.
    QStandardItem* parent = model.item(0);
    parent->appendRow(new QStandardItem);
    parent->appendRow(new QStandardItem);
    parent->child(0)->setData(left, Qt::DisplayRole);
    parent->child(1)->setData(right, Qt::DisplayRole);
    QCOMPARE(proxy.lessThan(parent->child(0)->index(), parent->child(1)->index()), less);
    model.setData(model.index(0, 0), right);
    model.setData(model.index(1, 0), left);
    QCOMPARE(proxy.lessThan(model.index(1, 0), model.index(0, 0)), less);
}

void tst_OrvColumnFilterProxyModel::sortsNumbersAsNumbers()
{
    QStandardItemModel model;
    for (const char* text : {"10", "9", "-3", "2.5", "100", "1e1"})
        model.appendRow(new QStandardItem(QString::fromLatin1(text)));
    OrvColumnFilterProxyModel proxy;
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(&model);
    proxy.sort(0);
    QStringList order;
    for (int i = 0; i < proxy.rowCount(); ++i)
        order << proxy.index(i, 0).data().toString();
    QCOMPARE(order, (QStringList{"-3", "2.5", "9", "10", "1e1", "100"}));

    // An edited cell moves to its numeric place.
    model.item(0)->setText(QStringLiteral("1"));
    QCOMPARE(proxy.index(1, 0).data().toString(), QStringLiteral("1"));
}

// Sorts large enough to rank the rows must order exactly as the pairwise rule
// does, whatever the mix of values (ties keep their order, inconsistent pairs
// give whatever the pairwise sort gives), also over filtered rows.
void tst_OrvColumnFilterProxyModel::orderMatchesPairwiseRule_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::newRow("numbers with ties") << QVariantList{"5", "5.0", "-0", "0", "1e1", "10", "-3", "2.5", "inf"};
    QTest::newRow("words with ties") << QVariantList{"b", "a", "B", "abc", "a", "Z", ""};
    QTest::newRow("numbers before words") << QVariantList{"10", "9", "-1", "2.5", "abc", "Zeta", "b"};
    QTest::newRow("words before numbers") << QVariantList{"#a", "!", "#b", "10", "9", "2"};
    QTest::newRow("numbers among words") << QVariantList{"9", "10", "1a", "abc", "05"};
    QTest::newRow("not a number") << QVariantList{"nan", "1", "2", "-inf", "1"};
    QTest::newRow("values") << QVariantList{10, 9.5, -2, qlonglong(1) << 60, "7", 7.0};
    QTest::newRow("values and words") << QVariantList{10, 2.5, "abc", "b", 100};
    QTest::newRow("cells without text") << QVariantList{QVariant(), "3", "1", "2"};
}

void tst_OrvColumnFilterProxyModel::orderMatchesPairwiseRule()
{
    QFETCH(QVariantList, values);
    struct Reference : QSortFilterProxyModel
    {
        bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
        {
            const QVariant a = left.data(), b = right.data();
            if (a.canConvert<QString>() && b.canConvert<QString>()) {
                bool aNumber = false, bNumber = false;
                const double x = a.toString().toDouble(&aNumber), y = b.toString().toDouble(&bNumber);
                return aNumber && bNumber ? x < y : a.toString() < b.toString();
            }
            return a.canConvert<double>() && b.canConvert<double>() && a.toDouble() < b.toDouble();
        }
    };
    QStandardItemModel model(300, 2);
    for (int row = 0; row < model.rowCount(); ++row) {
        model.setData(model.index(row, 0), values.at((row * 7 + row / 5) % values.size()));
        model.setData(model.index(row, 1), row % 3 ? "x" : "y");
    }
    OrvColumnFilterProxyModel proxy;
    Reference reference;
    proxy.setSourceModel(&model);
    reference.setSourceModel(&model);
    for (const Qt::SortOrder sortOrder : {Qt::AscendingOrder, Qt::DescendingOrder, Qt::AscendingOrder}) {
        proxy.sort(0, sortOrder);
        reference.sort(0, sortOrder);
        QCOMPARE(sourceRowsInOrder(proxy), sourceRowsInOrder(reference));
    }
    // Filtered, then a cell edited in place, then the filter gone again.
    proxy.setColumnStringFilter(QStringLiteral("x"), 1);
    reference.setFilterKeyColumn(1);
    reference.setFilterFixedString(QStringLiteral("x"));
    proxy.sort(0, Qt::DescendingOrder);
    reference.sort(0, Qt::DescendingOrder);
    QCOMPARE(sourceRowsInOrder(proxy), sourceRowsInOrder(reference));
    model.setData(model.index(4, 0), values.first());
    QCOMPARE(sourceRowsInOrder(proxy), sourceRowsInOrder(reference));
    proxy.setColumnStringFilter(QString(), 1);
    reference.setFilterFixedString(QString());
    QCOMPARE(sourceRowsInOrder(proxy), sourceRowsInOrder(reference));
}

// Patterns without expression syntax are matched by a case-folded substring
// search: it must find exactly what the expression finds, for every character.
void tst_OrvColumnFilterProxyModel::literalMatchingAgreesWithExpressions()
{
    QStringList texts;
    for (char32_t c = 1; c < 0x110000; c += (c < 0x10000 ? 1 : 97)) {
        if (c >= 0xD800 && c < 0xE000)
            continue;
        texts << QString::fromUcs4(&c, 1);
    }
    const QChar high(char16_t(0xD83D)), low(char16_t(0xDE00));
    texts << QStringLiteral("k") + high + low << QStringLiteral("\u212As") << QStringLiteral("k") + high << low + QStringLiteral("k");

    QStandardItemModel model(int(texts.size()), 1);
    for (int row = 0; row < texts.size(); ++row)
        model.setData(model.index(row, 0), texts.at(row));
    OrvColumnFilterProxyModel proxy;
    proxy.setSourceModel(&model);

    // The expression reference runs once per pattern over all well-formed texts
    // joined by line breaks; the few ill-formed ones are matched one by one.
    const int wellFormed = int(texts.size()) - 2;
    QString joined;
    QList<int> rowAt;
    for (int row = 0; row < wellFormed; ++row) {
        joined += texts.at(row) + QLatin1Char('\n');
        rowAt.insert(rowAt.size(), texts.at(row).size() + 1, row);
    }

    QStringList patterns{QStringLiteral("Ks"), QStringLiteral("sK"), QStringLiteral("[x]?K"), QStringLiteral("(?:z)?s")};
    for (QChar c : QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 !\"#%&',-/:;<=>@_~"))
        patterns << QString(c);
    for (const QString& pattern : patterns) {
        const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
        QList<int> expected;
        QRegularExpressionMatchIterator it = expression.globalMatch(joined);
        while (it.hasNext()) {
            const int row = rowAt.at(it.next().capturedStart());
            if (expected.isEmpty() || expected.last() != row)
                expected << row;
        }
        for (int row = wellFormed; row < texts.size(); ++row) {
            if (expression.match(texts.at(row)).hasMatch())
                expected << row;
        }
        proxy.setColumnStringFilter(pattern, 0);
        QVERIFY2(visibleSourceRows(proxy) == expected, qPrintable(pattern));
    }
}

QTEST_MAIN(tst_OrvColumnFilterProxyModel)
#include "tst_orv_column_filter_proxy_model.moc"
