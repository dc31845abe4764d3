#include <orv_grid_layout.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {
// A page with a grid of 40-pixel buttons.
struct Grid
{
    Grid(int maxColumn, int buttons)
        : layout(new OrvGridLayout(eDefault, &page, maxColumn))
    {
        for (int i = 0; i < buttons; ++i)
            add();
    }
    QWidget* add()
    {
        auto* w = new QWidget;
        w->setFixedSize(40, 40);
        widgets.append(w);
        layout->add_widget(w);
        return w;
    }
    QPoint cell(QWidget* w) const
    {
        int row = -1, col = -1, rs = 0, cs = 0;
        const int i = layout->indexOf(w);
        if (i >= 0)
            layout->getItemPosition(i, &row, &col, &rs, &cs);
        return QPoint(col, row);
    }
    void resizeParent(int width)
    {
        QResizeEvent event(QSize(width, 300), page.size());
        layout->onParentResize(&event);
    }
    // The widgets fill the rows left to right, `columns` per row, in insertion order.
    bool filledRowByRow(int columns) const
    {
        for (int i = 0; i < widgets.size(); ++i) {
            if (cell(widgets.at(i)) != QPoint(i % columns, i / columns)) {
                qWarning() << "widget" << i << "at" << cell(widgets.at(i));
                return false;
            }
        }
        return layout->count() == widgets.size();
    }
    QWidget page;
    OrvGridLayout* layout;
    QList<QWidget*> widgets;
};
} // namespace

class TestOrvGridLayout : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void columns_data()
    {
        QTest::addColumn<int>("maxColumn");
        QTest::addColumn<QList<int>>("parentWidths");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("columns");
        QTest::newRow("three per row") << 3 << QList<int>{} << 7 << 3;
        QTest::newRow("menu group: one per row") << 1 << QList<int>{} << 4 << 1;
        QTest::newRow("fixed count ignores resizes") << 2 << QList<int>{300} << 5 << 2;
        QTest::newRow("auto before any resize: one row") << -1 << QList<int>{} << 5 << 5;
        QTest::newRow("auto 132 -> 3") << -1 << QList<int>{132} << 7 << 3;
        QTest::newRow("auto 132, shrink to 100 -> 1") << -1 << QList<int>{132, 100} << 7 << 1;
        QTest::newRow("auto 132, shrink to 130 -> 2") << -1 << QList<int>{132, 130} << 7 << 2;
        QTest::newRow("auto 100, grow to 176 -> 4") << -1 << QList<int>{100, 176} << 9 << 4;
        QTest::newRow("auto narrower than a button -> 1") << -1 << QList<int>{30} << 3 << 1;
    }
    void columns()
    {
        QFETCH(int, maxColumn);
        QFETCH(QList<int>, parentWidths);
        QFETCH(int, buttons);
        QFETCH(int, columns);
        Grid g(maxColumn, buttons);
        QCOMPARE(g.layout->isAutoSize(), maxColumn < 0);
        for (int width : parentWidths)
            g.resizeParent(width);
        QVERIFY(g.filledRowByRow(columns));
    }

    void sameWidgetTwicePlacedOnce()
    {
        Grid g(3, 1);
        g.layout->add_widget(g.widgets.first());
        QCOMPARE(g.layout->count(), 1);
        g.add();
        QVERIFY(g.filledRowByRow(3));
    }

    // A spacer met by the walk gives up its cell; one further down (the trailing
    // spacer that keeps buttons packed at the top) stays where it is.
    void spacers_data()
    {
        QTest::addColumn<QPoint>("spacerCell");
        QTest::addColumn<QPoint>("expectedCell");
        QTest::addColumn<int>("expectedCount");
        QTest::newRow("in the walk") << QPoint(1, 0) << QPoint(1, 0) << 2;
        QTest::newRow("trailing row") << QPoint(0, 5) << QPoint(1, 0) << 3;
    }
    void spacers()
    {
        QFETCH(QPoint, spacerCell);
        QFETCH(QPoint, expectedCell);
        QFETCH(int, expectedCount);
        Grid g(3, 1);
        g.layout->addItem(new QSpacerItem(10, 1), spacerCell.y(), spacerCell.x());
        QWidget* w = g.add();
        QCOMPARE(g.cell(w), expectedCell);
        QCOMPARE(g.layout->count(), expectedCount);
    }

    void destructionRebuilds_data()
    {
        QTest::addColumn<QList<int>>("destroy");
        QTest::newRow("second") << QList<int>{1};
        QTest::newRow("first and last") << QList<int>{0, 6};
        QTest::newRow("all") << QList<int>{0, 1, 2, 3, 4, 5, 6};
    }
    void destructionRebuilds()
    {
        QFETCH(QList<int>, destroy);
        Grid g(3, 7);
        QList<QWidget*> dead;
        for (int i : destroy)
            dead.append(g.widgets.at(i));
        for (QWidget* w : dead) {
            g.widgets.removeOne(w);
            delete w;
        }
        QVERIFY(g.filledRowByRow(3));
    }

    void autoSizeSwitch()
    {
        Grid g(3, 9);
        g.layout->setMaxColumn(2);
        QVERIFY(g.filledRowByRow(2));
        g.page.resize(176, 300);
        g.layout->setAutoSize(true);
        QVERIFY(g.layout->isAutoSize());
        QVERIFY(g.filledRowByRow(4));
        g.layout->setAutoSize(false);
        QVERIFY(!g.layout->isAutoSize());
        QVERIFY(g.filledRowByRow(1));
        g.resizeParent(400);
        QVERIFY(g.filledRowByRow(1));
    }

    void widgetTakenOutIsNotPulledBack()
    {
        Grid g(3, 4);
        QWidget* taken = g.widgets.takeAt(1);
        taken->setParent(nullptr);
        g.layout->setMaxColumn(2);
        QCOMPARE(taken->parent(), nullptr);
        QVERIFY(g.filledRowByRow(2));
        delete taken;
        QVERIFY(g.filledRowByRow(2));
    }
};

QTEST_MAIN(TestOrvGridLayout)
#include "tst_orv_grid_layout.moc"
