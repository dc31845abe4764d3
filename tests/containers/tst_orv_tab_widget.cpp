#include <orv_dialog.h>
#include <orv_dialog_helper.h>
#include <orv_events.h>
#include <orv_splitter.h>
#include <orv_tab_widget.h>
#include <orv_test_support.h>
#include <tab_bar_tab_style.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {

class Page : public OrvDialog
{
public:
    explicit Page(const QString& title = QStringLiteral("Page"), bool closable = true)
        : OrvDialog(nullptr, OkApplyCancel, closable)
        , m_titleText(title)
    {
        new QLineEdit(this);
    }
    void retranslate() override { translate(m_titleText); }
    QString m_titleText;
};

QWidget* frame(OrvDialog* page)
{
    return page->getHelper();
}

// Counts custom events of one type that reach the application object.
class EventCounter : public QObject
{
public:
    explicit EventCounter(int type) : m_type(type) { qApp->installEventFilter(this); }
    ~EventCounter() override { qApp->removeEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == m_type) {
            ++count;
            widget = static_cast<SaveImageEvent*>(event)->widget();
        }
        return false;
    }
    int m_type;
    int count = 0;
    QWidget* widget = nullptr;
};

} // namespace

class TestOrvTabWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysAndLookup_data()
    {
        QTest::addColumn<bool>("subTabs");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("objectName");
        QTest::newRow("flat") << false << "Planning" << "Setup" << "Planning.Setup";
        QTest::newRow("flat, empty names use '.'") << false << "" << "" << ".";
        QTest::newRow("grouped") << true << "Planning" << "Setup" << "Setup";
    }
    void keysAndLookup()
    {
        QFETCH(bool, subTabs);
        QFETCH(QString, group);
        QFETCH(QString, id);
        QFETCH(QString, objectName);
        OrvTabWidget tabs(nullptr, false);
        tabs.setSubTabsVisible(subTabs);
        auto* page = new Page;
        tabs.addTab(group, id, frame(page), true, true);
        QCOMPARE(tabs.getWidget(group, id), frame(page));
        QCOMPARE(frame(page)->objectName(), objectName);
        QVERIFY(tabs.focusTab(group, id));
        QVERIFY(!tabs.getWidget(group, "other"));
        QVERIFY(!tabs.focusTab(group + "x", id + "x"));
        if (subTabs) {
            auto* inner = qobject_cast<OrvTabWidget*>(tabs.widget(0));
            QVERIFY(inner && inner->isSecondary());
            QCOMPARE(inner->objectName(), group);
            QCOMPARE(inner->count(), 1);
            QVERIFY(inner->isMovable());
        }
    }

    void sameKeyTwiceAppendsASecondTab()
    {
        OrvTabWidget tabs(nullptr, false);
        auto* first = new Page("First");
        auto* second = new Page("Second");
        tabs.addTab("G", "I", frame(first), true, true);
        tabs.addTab("G", "I", frame(second), true, true);
        QCOMPARE(tabs.count(), 2);
        QCOMPARE(tabs.getWidget("G", "I"), frame(second));
        QCOMPARE(tabs.tabText(0), QStringLiteral("First"));
    }

    void subTabsOnlyWhileEmpty()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.addTab("G", "I", new QWidget, true, true);
        tabs.setSubTabsVisible(true);
        QVERIFY(!tabs.hasSubTabs());
    }

    void tabTexts()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.addTab("G", "titled", frame(new Page("Exercise setup")), true, true);
        tabs.addTab("G", "untitled", frame(new Page(QString())), true, true);
        tabs.addTab("G", "plain", new QWidget, true, true);
        QCOMPARE(tabs.tabText(0), QStringLiteral("Exercise setup"));
        QCOMPARE(tabs.tabText(1), QStringLiteral("retranslate() fehlt!"));
        QCOMPARE(tabs.tabText(2), QStringLiteral("G.plain"));
        QCOMPARE(tabs.tabToolTip(2), QStringLiteral("DEBUG: WindowName: G.plain"));
    }

    void readOnlyMark_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tooltip");
        QTest::newRow("locked") << "Setup - READ-ONLY (Alice)" << "Setup" << "Locked by: Alice";
        QTest::newRow("no parentheses") << "Setup - READ-ONLY Bob" << "Setup" << "Locked by: Bob";
        QTest::newRow("unlocked") << "Setup" << "Setup" << "";
        QTest::newRow("separator twice") << "A - READ-ONLY B - READ-ONLY (C)" << "A - READ-ONLY B - READ-ONLY (C)"
                                         << "";
    }
    void readOnlyMark()
    {
        QFETCH(QString, title);
        QFETCH(QString, text);
        QFETCH(QString, tooltip);
        OrvTabWidget tabs(nullptr, false);
        QWidget* page = new QWidget;
        tabs.addTab("G", "I", page, true, true);
        page->setWindowTitle(title);
        QCOMPARE(tabs.tabText(0), text);
        auto* mark = qobject_cast<QLabel*>(tabs.tabBar()->tabButton(0, QTabBar::LeftSide));
        QCOMPARE(mark ? mark->toolTip() : QString(), tooltip);
        page->setWindowTitle("Plain again");
        QVERIFY(!tabs.tabBar()->tabButton(0, QTabBar::LeftSide));
    }

    void lockedPageShowsMark()
    {
        OrvTabWidget tabs(nullptr, false);
        auto* page = new Page("Setup");
        tabs.addTab("G", "I", frame(page), true, true);
        page->slotLock("Alice");
        QCOMPARE(tabs.tabText(0), QStringLiteral("Setup"));
        QVERIFY(tabs.tabBar()->tabButton(0, QTabBar::LeftSide));
        page->slotUnlock();
        QVERIFY(!tabs.tabBar()->tabButton(0, QTabBar::LeftSide));
    }

    void closeRequests()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.show();
        auto* changed = new Page("Changed");
        auto* fixed = new Page("Fixed", false);
        tabs.addTab("G", "changed", frame(changed), true, true);
        tabs.addTab("G", "fixed", frame(fixed), false, true);
        QVERIFY(tabs.tabBar()->tabButton(1, QTabBar::RightSide)->isHidden());

        tabs.slotTabCloseRequested(1); // not closable: nothing
        QCOMPARE(tabs.count(), 2);

        changed->slotChangesMade();
        OrvTest::DialogAnswerer answerer;
        answerer.click("Cancel").click("Discard");
        tabs.slotTabCloseRequested(0);
        QCOMPARE(tabs.count(), 2);
        QVERIFY(changed->hasUnsavedChanges());
        tabs.slotTabCloseRequested(0);
        QTRY_COMPARE(tabs.count(), 1);
        QCOMPARE(answerer.answered(), 2);
        QVERIFY(!tabs.getWidget("G", "changed"));
    }

    void closingAGroupWithUnsavedChanges()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.setSubTabsVisible(true);
        tabs.show();
        auto* page = new Page("Changed");
        tabs.addTab("Group", "a", frame(page), true, true);
        tabs.addTab("Group", "b", frame(new Page("Clean")), true, true);
        page->slotChangesMade();
        QPointer<QWidget> inner = tabs.widget(0);

        OrvTest::DialogAnswerer answerer;
        answerer.click("Cancel");
        tabs.slotTabCloseRequested(0);
        QCOMPARE(answerer.buttons().first(), QStringList({"Discard All", "Cancel"}));
        QVERIFY(inner);
        QCOMPARE(qobject_cast<OrvTabWidget*>(inner.data())->currentWidget(), frame(page)); // first change shown

        answerer.click("Discard All");
        tabs.slotTabCloseRequested(0);
        QTRY_VERIFY(!inner);
        QTRY_COMPARE(tabs.count(), 0);
        QTRY_VERIFY(!tabs.isVisible()); // an empty primary widget hides
    }

    void destroyingPagesRemovesTabs()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.setSubTabsVisible(true);
        tabs.show();
        auto* a = new Page;
        auto* b = new Page;
        tabs.addTab("G", "a", frame(a), true, true);
        tabs.addTab("G", "b", frame(b), true, true);
        QPointer<QWidget> inner = tabs.widget(0);
        delete a; // the frame follows later
        QTRY_COMPARE(qobject_cast<OrvTabWidget*>(inner.data())->count(), 1);
        b->slotHide(); // leaves the tab through signalHide
        QTRY_VERIFY(!inner); // the empty inner widget deletes itself
        QCOMPARE(tabs.count(), 0);
    }

    void removeWidgetForgetsTheKeyOnly()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.setSubTabsVisible(true);
        auto* page = new Page;
        tabs.addTab("G", "a", frame(page), true, true);
        QVERIFY(!tabs.removeWidget(nullptr));
        QVERIFY(tabs.removeWidget(frame(page)));
        QVERIFY(!tabs.getWidget("G", "a"));
        QVERIFY(!tabs.removeWidget(frame(page)));
        QCOMPARE(qobject_cast<OrvTabWidget*>(tabs.widget(0))->count(), 1);
    }

    void focusNotification()
    {
        OrvTabWidget tabs(nullptr, false);
        auto* a = new Page;
        auto* b = new Page;
        tabs.addTab("G", "a", frame(a), true, true);
        tabs.addTab("G", "b", frame(b), true, false);
        QSignalSpy focused(b, &OrvDialog::signalFocused);
        tabs.setCurrentIndex(1);
        QCOMPARE(focused.count(), 1);
    }

    void closeButtonHitArea_data()
    {
        QTest::addColumn<QPoint>("release");
        QTest::addColumn<bool>("closes");
        QTest::newRow("centre of the cross") << QPoint(10, 10) << true;
        QTest::newRow("on the separator line") << QPoint(2, 10) << false;
        QTest::newRow("top margin") << QPoint(10, 1) << false;
        QTest::newRow("right margin") << QPoint(19, 10) << false;
    }
    void closeButtonHitArea()
    {
        QFETCH(QPoint, release);
        QFETCH(bool, closes);
        CloseButton button;
        button.resize(20, 20);
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        QTest::mousePress(&button, Qt::LeftButton, {}, release);
        QTest::mouseRelease(&button, Qt::LeftButton, {}, release);
        QCOMPARE(clicked.count(), closes ? 1 : 0);
        QCOMPARE(button.line(), QLineF(2.501, 2.501, 2.501, 17.499));
    }

    void closeButtonColours()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.addTab("G", "a", new QWidget, true, true);
        tabs.addTab("G", "b", new QWidget, true, false);
        auto colour = [&](int i) { return qobject_cast<CloseButton*>(tabs.tabBar()->tabButton(i, QTabBar::RightSide))->fontColor(); };
        QCOMPARE(colour(0), Styles::TabBarTabStyle::primarySelected());
        QCOMPARE(colour(1), Styles::TabBarTabStyle::primaryNormal());
        tabs.setCurrentIndex(1);
        QCOMPARE(colour(0), Styles::TabBarTabStyle::primaryNormal());
        QCOMPARE(colour(1), Styles::TabBarTabStyle::primarySelected());
    }

    void saveAsImage()
    {
        OrvTabWidget outer(nullptr, false);
        outer.setSubTabsVisible(true);
        auto* page = new Page;
        outer.addTab("G", "a", frame(page), true, true);
        auto* inner = qobject_cast<OrvTabWidget*>(outer.widget(0));
        QCOMPARE(inner->tabBar()->contextMenuPolicy(), Qt::CustomContextMenu);
        QCOMPARE(outer.tabBar()->contextMenuPolicy(), Qt::DefaultContextMenu);

        EventCounter counter(SaveImageEvent::saveImageEventId());
        QMetaObject::invokeMethod(inner->tabBar(), "onSaveCurrentWidgetAsImage", Q_ARG(QPoint, QPoint(-5, -5)));
        QCoreApplication::sendPostedEvents(qApp);
        QCOMPARE(counter.count, 1);
        QCOMPARE(counter.widget, page); // the page, not its frame

        OrvTabWidget empty(nullptr, true);
        QMetaObject::invokeMethod(empty.tabBar(), "onSaveCurrentWidgetAsImage", Q_ARG(QPoint, QPoint()));
        QCoreApplication::sendPostedEvents(qApp);
        QCOMPARE(counter.count, 1);
    }

    void minMaxButtonOnlyInTheLowerMainPane()
    {
        OrvSplitter splitter(Qt::Vertical);
        splitter.setObjectName("mainSplitter");
        splitter.addWidget(new QWidget);
        auto* lower = new OrvTabWidget(&splitter, false);
        auto* upperOther = new OrvTabWidget(nullptr, false);
        QVERIFY(lower->findChild<QPushButton*>("MinMaxTabButton"));
        QVERIFY(!upperOther->findChild<QPushButton*>("MinMaxTabButton"));
        delete upperOther;
    }

    void pendingFocusFlashSurvivesDestruction()
    {
        OrvSplitter splitter(Qt::Vertical);
        splitter.setObjectName("mainSplitter");
        splitter.addWidget(new QWidget);
        auto* lower = new OrvTabWidget(&splitter, false);
        lower->addTab("G", "a", new QWidget, true, true);
        QVERIFY(lower->focusTab("G", "a"));
        delete lower;
        QTest::qWait(600); // the timer would fire here
    }
};

QTEST_MAIN(TestOrvTabWidget)
#include "tst_orv_tab_widget.moc"
