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

// Adds `page` in its frame under group/id, closable and focused.
Page* add(OrvTabWidget& tabs, const QString& group, const QString& id, Page* page = new Page)
{
    tabs.addTab(group, id, frame(page), true, true);
    return page;
}

// Records the save-image events that reach the application object.
struct SaveImageRecorder : QObject
{
    SaveImageRecorder() { qApp->installEventFilter(this); }
    ~SaveImageRecorder() override { qApp->removeEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == SaveImageEvent::saveImageEventId())
            widgets << static_cast<SaveImageEvent*>(event)->widget();
        return false;
    }
    QList<QWidget*> widgets;
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
        Page* page = add(tabs, group, id);
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
        } else {
            tabs.setSubTabsVisible(true); // only while empty
            QVERIFY(!tabs.hasSubTabs());
        }
    }

    void tabTexts()
    {
        OrvTabWidget tabs(nullptr, false);
        Page* titled = add(tabs, "G", "titled", new Page("Exercise setup"));
        add(tabs, "G", "untitled", new Page(QString()));
        tabs.addTab("G", "plain", new QWidget, true, true);
        QCOMPARE(tabs.tabText(0), QStringLiteral("Exercise setup"));
        QCOMPARE(tabs.tabText(1), QStringLiteral("retranslate() fehlt!"));
        QCOMPARE(tabs.tabText(2), QStringLiteral("G.plain"));
        QCOMPARE(tabs.tabToolTip(2), QStringLiteral("DEBUG: WindowName: G.plain"));
        // The same key again appends a second tab, which the key then finds.
        Page* second = add(tabs, "G", "titled", new Page("Second"));
        QCOMPARE(tabs.count(), 4);
        QCOMPARE(tabs.getWidget("G", "titled"), frame(second));
        // A locked page keeps its tab text and gets the mark.
        titled->slotLock("Alice");
        QCOMPARE(tabs.tabText(0), QStringLiteral("Exercise setup"));
        QVERIFY(tabs.tabBar()->tabButton(0, QTabBar::LeftSide));
        titled->slotUnlock();
        QVERIFY(!tabs.tabBar()->tabButton(0, QTabBar::LeftSide));
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

    void closeRequests()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.show();
        Page* changed = add(tabs, "G", "changed", new Page("Changed"));
        tabs.addTab("G", "fixed", frame(new Page("Fixed", false)), false, true);
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
        Page* page = add(tabs, "Group", "a", new Page("Changed"));
        add(tabs, "Group", "b", new Page("Clean"));
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
        Page* a = add(tabs, "G", "a");
        Page* b = add(tabs, "G", "b");
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
        Page* page = add(tabs, "G", "a");
        QVERIFY(!tabs.removeWidget(nullptr));
        QVERIFY(tabs.removeWidget(frame(page)));
        QVERIFY(!tabs.getWidget("G", "a"));
        QVERIFY(!tabs.removeWidget(frame(page)));
        QCOMPARE(qobject_cast<OrvTabWidget*>(tabs.widget(0))->count(), 1);
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
    }

    // Switching tabs tells the page it has the focus and recolours the close buttons.
    void currentTabChange()
    {
        OrvTabWidget tabs(nullptr, false);
        Page* first = add(tabs, "G", "a");
        auto* b = new Page;
        tabs.addTab("G", "b", frame(b), true, false);
        QSignalSpy focused(b, &OrvDialog::signalFocused);
        auto colour = [&](int i) { return qobject_cast<CloseButton*>(tabs.tabBar()->tabButton(i, QTabBar::RightSide))->fontColor(); };
        QVERIFY(Styles::TabBarTabStyle::primarySelected() != Styles::TabBarTabStyle::primaryNormal());
        QCOMPARE(colour(0), Styles::TabBarTabStyle::primarySelected());
        QCOMPARE(colour(1), Styles::TabBarTabStyle::primaryNormal());
        // Only the page in front takes updates, so that switching stays cheap
        // however many pages are open; a page taken elsewhere paints again.
        QVERIFY(frame(first)->updatesEnabled());
        QVERIFY(!frame(b)->updatesEnabled());
        tabs.setCurrentIndex(1);
        QCOMPARE(focused.count(), 1);
        QCOMPARE(colour(0), Styles::TabBarTabStyle::primaryNormal());
        QCOMPARE(colour(1), Styles::TabBarTabStyle::primarySelected());
        QVERIFY(frame(b)->updatesEnabled());
        QWidget* a = tabs.widget(0);
        QVERIFY(!a->updatesEnabled());
        tabs.removeTab(0);
        QWidget elsewhere;
        a->setParent(&elsewhere);
        QVERIFY(a->updatesEnabled());
    }

    void saveAsImage()
    {
        OrvTabWidget outer(nullptr, false);
        outer.setSubTabsVisible(true);
        Page* page = add(outer, "G", "a");
        auto* inner = qobject_cast<OrvTabWidget*>(outer.widget(0));
        QCOMPARE(inner->tabBar()->contextMenuPolicy(), Qt::CustomContextMenu);
        QCOMPARE(outer.tabBar()->contextMenuPolicy(), Qt::DefaultContextMenu);

        SaveImageRecorder recorder;
        OrvTabWidget empty(nullptr, true); // nothing to save
        for (QTabBar* bar : {inner->tabBar(), empty.tabBar()})
            QMetaObject::invokeMethod(bar, "onSaveCurrentWidgetAsImage", Q_ARG(QPoint, QPoint(-5, -5)));
        QCoreApplication::sendPostedEvents(qApp);
        QCOMPARE(recorder.widgets, QList<QWidget*>{page}); // the page, not its frame
    }

    // Only the lower main pane gets the min/max button; its pending focus flash
    // must not outlive it.
    void lowerMainPane()
    {
        OrvSplitter splitter(Qt::Vertical);
        splitter.setObjectName("mainSplitter");
        splitter.addWidget(new QWidget);
        auto* lower = new OrvTabWidget(&splitter, false);
        OrvTabWidget other(nullptr, false);
        QVERIFY(lower->findChild<QPushButton*>("MinMaxTabButton"));
        QVERIFY(!other.findChild<QPushButton*>("MinMaxTabButton"));
        lower->addTab("G", "a", new QWidget, true, true);
        QVERIFY(lower->focusTab("G", "a"));
        delete lower;
        QTest::qWait(600); // the timer would fire here
    }
};

QTEST_MAIN(TestOrvTabWidget)
#include "tst_orv_tab_widget.moc"
