#include <orv_grid_layout.h>
#include <orv_tool_box.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {
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

class TestOrvToolBox : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pageGridFollowsWidth()
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

    void keyboard_data()
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
    void keyboard()
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

QTEST_MAIN(TestOrvToolBox)
#include "tst_orv_tool_box.moc"
