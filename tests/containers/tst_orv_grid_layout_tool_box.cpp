#include <orv_grid_layout.h>
#include <orv_tool_box.h>

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

// A shown tool box of three pages, each holding one push button.
struct Box
{
    Box()
    {
        // The middle page is inserted last: its tab must behave like the others.
        for (int i : {0, 2, 1}) {
            auto* page = new QWidget;
            auto* layout = new QVBoxLayout(page);
            auto* button = new QPushButton(QStringLiteral("Entry %1").arg(i));
            layout->addWidget(button);
            contents.insert(qMin(i, int(contents.size())), button);
            box.insertItem(i, page, QStringLiteral("Group %1").arg(i));
        }
        box.resize(200, 400);
        box.show();
    }
    // The page tabs, top to bottom.
    QList<QAbstractButton*> tabs() const
    {
        auto list = box.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
        std::sort(list.begin(), list.end(), [](QWidget* a, QWidget* b) { return a->y() < b->y(); });
        return list;
    }
    OrvToolBox box;
    QList<QPushButton*> contents;
};
} // namespace

class TestOrvGridLayoutAndToolBox : public QObject
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
        if (maxColumn > 0) { // the same widget again is placed once, leaving no hole
            g.layout->add_widget(g.widgets.first());
            g.add();
            QVERIFY(g.filledRowByRow(columns));
        }
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

    void toolBoxPageGridFollowsWidth()
    {
        OrvToolBox box;
        auto* page = new QWidget;
        auto* grid = new OrvGridLayout(eDefault, page, -1);
        for (int i = 0; i < 6; ++i) {
            auto* button = new QToolButton;
            button->setFixedSize(40, 40);
            grid->add_widget(button);
        }
        box.addItem(page, QStringLiteral("Group"));
        connect(&box, &OrvToolBox::resized, grid, &OrvGridLayout::onParentResize);
        box.resize(176, 400);
        box.show();
        QTRY_COMPARE(grid->maxColumn(), 4);
        box.resize(100, 400);
        QTRY_COMPARE(grid->maxColumn(), 1);
    }

    void toolBoxKeyboard_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("focusTab"); // -1: focus inside the current page
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("disableMiddle");
        QTest::addColumn<int>("expected");
        QTest::newRow("down") << 0 << 0 << int(Qt::Key_Down) << 0 << false << 1;
        QTest::newRow("up at the top stays") << 0 << 0 << int(Qt::Key_Up) << 0 << false << 0;
        QTest::newRow("down skips disabled") << 0 << 0 << int(Qt::Key_Down) << 0 << true << 2;
        QTest::newRow("end") << 0 << 0 << int(Qt::Key_End) << 0 << false << 2;
        QTest::newRow("home") << 2 << 2 << int(Qt::Key_Home) << 0 << false << 0;
        QTest::newRow("return opens focused tab") << 0 << 2 << int(Qt::Key_Return) << 0 << false << 2;
        QTest::newRow("space opens focused tab") << 0 << 1 << int(Qt::Key_Space) << 0 << false << 1;
        QTest::newRow("ctrl+pgdown from page") << 0 << -1 << int(Qt::Key_PageDown) << int(Qt::ControlModifier) << false << 1;
        QTest::newRow("ctrl+pgup from page") << 2 << -1 << int(Qt::Key_PageUp) << int(Qt::ControlModifier) << false << 1;
    }
    void toolBoxKeyboard()
    {
        QFETCH(int, start);
        QFETCH(int, focusTab);
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(bool, disableMiddle);
        QFETCH(int, expected);
        Box b;
        QVERIFY(QTest::qWaitForWindowActive(&b.box));
        const QList<QAbstractButton*> tabs = b.tabs();
        QCOMPARE(tabs.size(), 3);
        for (QAbstractButton* tab : tabs)
            QCOMPARE(tab->focusPolicy(), Qt::TabFocus);
        b.box.setItemEnabled(1, !disableMiddle);
        b.box.setCurrentIndex(start);
        QWidget* target = focusTab < 0 ? static_cast<QWidget*>(b.contents.at(start)) : tabs.at(focusTab);
        target->setFocus();
        QTest::keyClick(target, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(b.box.currentIndex(), expected);
        if (focusTab >= 0 || expected != start)
            QCOMPARE(QApplication::focusWidget(), tabs.at(expected));
    }
};

QTEST_MAIN(TestOrvGridLayoutAndToolBox)
#include "tst_orv_grid_layout_tool_box.moc"
