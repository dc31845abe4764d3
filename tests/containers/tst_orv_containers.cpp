#include <orv_dialog.h>
#include <orv_dialog_helper.h>
#include <orv_elided_label.h>
#include <orv_events.h>
#include <orv_grid_layout.h>
#include <orv_splitter.h>
#include <orv_tab_widget.h>
#include <orv_test_support.h>
#include <orv_tool_box.h>
#include <tab_bar_tab_style.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {
const QColor kFlashRed(239, 87, 50);

// A shown horizontal splitter of three panes, 320 pixels wide (300 for the panes).
struct ThreePanes : OrvSplitter
{
    ThreePanes()
    {
        for (int i = 0; i < 3; ++i)
            addWidget(new QWidget);
        resize(320, 100);
        show();
        setSizes({100, 100, 100});
    }
};

// A page with a grid of 40-pixel buttons.
struct Grid
{
    Grid(int maxColumn, int buttons)
        : layout(new OrvGridLayout(eDefault, page.get(), maxColumn))
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
        QResizeEvent event(QSize(width, 300), page->size());
        layout->onParentResize(&event);
    }
    // The widgets fill the rows left to right, `columns` per row, in insertion order.
    bool filledRowByRow(int columns) const
    {
        for (int i = 0; i < widgets.size(); ++i)
            if (cell(widgets.at(i)) != QPoint(i % columns, i / columns))
                return false;
        return layout->count() == widgets.size();
    }
    std::unique_ptr<QWidget> page = std::make_unique<QWidget>();
    OrvGridLayout* layout;
    QList<QWidget*> widgets;
};


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
    QWidget* frame() { return getHelper(); }
    QString m_titleText;
};

// Adds `page` in its frame under group/id, closable and focused.
Page* add(OrvTabWidget& tabs, const QString& group, const QString& id, Page* page = new Page)
{
    tabs.addTab(group, id, page->frame(), true, true);
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

class TestOrvContainers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void splitterCollapseChild()
    {
        ThreePanes splitter;
        // Negative, a child object but no pane, beyond the child objects: nothing happens.
        for (int index : {-1, 4, 6}) {
            splitter.collapseChild(index);
            QCOMPARE(splitter.getSizes(), (QList<int>{100, 100, 100}));
        }
        for (int index : {2, 0}) {
            splitter.collapseChild(index);
            const QList<int> sizes = splitter.getSizes();
            QCOMPARE(sizes.at(index), 0);
            QCOMPARE(std::accumulate(sizes.cbegin(), sizes.cend(), 0), 300);
        }
    }

    void splitterSizesChangedKeepsSplittersInStep()
    {
        ThreePanes a, b;
        connect(&a, &OrvSplitter::sizesChanged, &b, &OrvSplitter::changeSizes);
        QSignalSpy spy(&a, &OrvSplitter::sizesChanged);
        // The splitter's own operations leave the signal to its owner.
        a.setSizes({200, 50, 50});
        a.collapseChild(0);
        QCOMPARE(spy.count(), 0);

        const QList<int> wanted{60, 60, 180};
        Q_EMIT a.sizesChanged(wanted);
        QCOMPARE(a.getSizes(), wanted);
        QCOMPARE(b.getSizes(), wanted);
    }

    // The "sizes" property animates linearly per pane and ends exactly on the end value.
    void splitterSizesAnimation()
    {
        OrvSplitter::registerInterpolator(); // twice is harmless
        ThreePanes splitter;
        const QList<int> end{1, 149, 150};
        QPropertyAnimation animation(&splitter, "sizes");
        animation.setDuration(1000);
        animation.setStartValue(QVariant::fromValue(QList<int>{201, 49, 50}));
        animation.setEndValue(QVariant::fromValue(end));
        animation.start();
        animation.pause(); // stepped by hand
        animation.setCurrentTime(500);
        QCOMPARE(animation.currentValue().value<QList<int>>(), (QList<int>{101, 99, 100}));
        QCOMPARE(splitter.property("sizes").value<QList<int>>(), (QList<int>{101, 99, 100}));
        animation.setCurrentTime(1000);
        QCOMPARE(splitter.getSizes(), end);
    }

    // A flash runs two passes once; handles that cannot flash ignore requests,
    // and the splitter may go while one runs.
    void splitterFlash()
    {
        auto* splitter = new ThreePanes;
        QVERIFY(QTest::qWaitForWindowExposed(splitter));
        auto* handle = qobject_cast<OrvSplitterHandle*>(splitter->handle(1));
        QVERIFY(handle);
        const QColor endColor = handle->palette().color(handle->backgroundRole());
        const QImage idle = handle->grab().toImage();
        for (int index : {-1, 0, 3})
            splitter->animate(index);

        splitter->animate(1);
        QVERIFY(handle->isAnimating());
        QCOMPARE(handle->splitterColor(), kFlashRed);
        const QImage flashing = handle->grab().toImage();
        QCOMPARE(flashing.pixelColor(flashing.rect().center()), kFlashRed);

        // A second request during the flash neither restarts nor resets it.
        QTRY_VERIFY(handle->splitterColor() != kFlashRed);
        const QColor midway = handle->splitterColor();
        splitter->animate(1);
        QCOMPARE(handle->splitterColor(), midway);

        QTRY_VERIFY_WITH_TIMEOUT(!handle->isAnimating(), 10000);
        QCOMPARE(handle->splitterColor(), endColor);
        QCOMPARE(handle->grab().toImage(), idle);
        splitter->animate(1);
        splitter->animate(2);
        QTest::qWait(50);
        delete splitter;
        QTest::qWait(50);
    }

    void gridColumns_data()
    {
        QTest::addColumn<int>("maxColumn");
        QTest::addColumn<QList<int>>("parentWidths");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("columns");
        QTest::newRow("menu group: one per row") << 1 << QList<int>{} << 4 << 1;
        QTest::newRow("fixed count ignores resizes") << 3 << QList<int>{300} << 7 << 3;
        QTest::newRow("auto before any resize: one row") << -1 << QList<int>{} << 5 << 5;
        QTest::newRow("auto 132 -> 3") << -1 << QList<int>{132} << 7 << 3;
        QTest::newRow("auto 132, shrink to 100 -> 1") << -1 << QList<int>{132, 100} << 7 << 1;
        QTest::newRow("auto 132, shrink to 130 -> 2") << -1 << QList<int>{132, 130} << 7 << 2;
        QTest::newRow("auto 100, grow to 176 -> 4") << -1 << QList<int>{100, 176} << 9 << 4;
        QTest::newRow("auto narrower than a button -> 1") << -1 << QList<int>{30} << 3 << 1;
    }
    void gridColumns()
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
    void gridSpacers()
    {
        for (int spacerRow : {0, 5}) {
            Grid g(3, 1);
            g.layout->addItem(new QSpacerItem(10, 1), spacerRow, 1);
            QCOMPARE(g.cell(g.add()), QPoint(1, 0));
            QCOMPARE(g.layout->count(), spacerRow == 0 ? 2 : 3);
        }
    }

    // Destroyed widgets leave no holes; one taken elsewhere is not pulled back.
    void gridLosesWidgets_data()
    {
        QTest::addColumn<QList<int>>("destroy"); // ascending
        QTest::newRow("second") << QList<int>{1};
        QTest::newRow("first and last") << QList<int>{0, 6};
        QTest::newRow("all") << QList<int>{0, 1, 2, 3, 4, 5, 6};
    }
    void gridLosesWidgets()
    {
        QFETCH(QList<int>, destroy);
        Grid g(3, 8);
        QScopedPointer<QWidget> taken(g.widgets.takeLast());
        taken->setParent(nullptr);
        for (auto it = destroy.crbegin(); it != destroy.crend(); ++it)
            delete g.widgets.takeAt(*it);
        QVERIFY(g.filledRowByRow(3));
        g.layout->setMaxColumn(2);
        QCOMPARE(taken->parent(), nullptr);
        QVERIFY(g.filledRowByRow(2));
        taken.reset();
        QVERIFY(g.filledRowByRow(2));
    }

    void gridAutoSizeSwitch()
    {
        Grid g(3, 9);
        g.layout->setMaxColumn(2);
        QVERIFY(g.filledRowByRow(2));
        g.page->resize(176, 300);
        g.layout->setAutoSize(true);
        QVERIFY(g.filledRowByRow(4));
        g.layout->setAutoSize(false);
        QVERIFY(g.filledRowByRow(1));
        g.resizeParent(400);
        QVERIFY(g.filledRowByRow(1));
    }

    void toolBoxPageGridFollowsWidth()
    {
        Grid g(-1, 6);
        OrvToolBox box;
        box.addItem(g.page.release(), QStringLiteral("Group"));
        connect(&box, &OrvToolBox::resized, g.layout, &OrvGridLayout::onParentResize);
        box.resize(176, 400);
        box.show();
        QTRY_VERIFY(g.filledRowByRow(4));
        box.resize(100, 400);
        QTRY_VERIFY(g.filledRowByRow(1));
    }

    void toolBoxKeyboard_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("focusTab"); // -1: focus inside the current page, with Ctrl
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("disableMiddle");
        QTest::addColumn<int>("expected");
        QTest::newRow("down") << 0 << 0 << int(Qt::Key_Down) << false << 1;
        QTest::newRow("up at the top stays") << 0 << 0 << int(Qt::Key_Up) << false << 0;
        QTest::newRow("down skips disabled") << 0 << 0 << int(Qt::Key_Down) << true << 2;
        QTest::newRow("end") << 0 << 0 << int(Qt::Key_End) << false << 2;
        QTest::newRow("home") << 2 << 2 << int(Qt::Key_Home) << false << 0;
        QTest::newRow("return opens focused tab") << 0 << 2 << int(Qt::Key_Return) << false << 2;
        QTest::newRow("space opens focused tab") << 0 << 1 << int(Qt::Key_Space) << false << 1;
        QTest::newRow("ctrl+pgdown from page") << 0 << -1 << int(Qt::Key_PageDown) << false << 1;
        QTest::newRow("ctrl+pgup from page") << 2 << -1 << int(Qt::Key_PageUp) << false << 1;
    }
    void toolBoxKeyboard()
    {
        QFETCH(int, start);
        QFETCH(int, focusTab);
        QFETCH(int, key);
        QFETCH(bool, disableMiddle);
        QFETCH(int, expected);
        OrvToolBox box;
        QList<QPushButton*> contents;
        // The middle page is inserted last: its tab must behave like the others.
        for (int i : {0, 2, 1}) {
            auto* page = new QWidget;
            contents.insert(qMin(i, int(contents.size())), new QPushButton(QStringLiteral("Entry %1").arg(i), page));
            box.insertItem(i, page, QStringLiteral("Group %1").arg(i));
        }
        box.resize(200, 400);
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        auto tabs = box.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
        std::sort(tabs.begin(), tabs.end(), [](QWidget* a, QWidget* b) { return a->y() < b->y(); });
        QCOMPARE(tabs.size(), 3);
        for (QAbstractButton* tab : tabs)
            QCOMPARE(tab->focusPolicy(), Qt::TabFocus);
        box.setItemEnabled(1, !disableMiddle);
        box.setCurrentIndex(start);
        QWidget* target = focusTab < 0 ? static_cast<QWidget*>(contents.at(start)) : tabs.at(focusTab);
        target->setFocus();
        QTest::keyClick(target, Qt::Key(key), focusTab < 0 ? Qt::ControlModifier : Qt::NoModifier);
        QCOMPARE(box.currentIndex(), expected);
        if (focusTab >= 0 || expected != start)
            QCOMPARE(QApplication::focusWidget(), tabs.at(expected));
    }

    // The label paints what a plain label shows for the shortened text, follows
    // text changes and never gets narrower than one character and the ellipsis.
    void elidedLabel_data()
    {
        QTest::addColumn<Qt::TextElideMode>("mode");
        QTest::addColumn<QString>("text");
        const QString text = QStringLiteral("Lage Nord: Versorgungsstrecke gesperrt bis auf Weiteres");
        QTest::newRow("right (default)") << Qt::ElideRight << text;
        QTest::newRow("left") << Qt::ElideLeft << text;
        QTest::newRow("middle") << Qt::ElideMiddle << text;
        QTest::newRow("none") << Qt::ElideNone << text;
        QTest::newRow("fits") << Qt::ElideRight << QStringLiteral("Nord");
    }
    void elidedLabel()
    {
        QFETCH(Qt::TextElideMode, mode);
        QFETCH(QString, text);
        const auto shot = [](QLabel* label) {
            label->resize(90, 24);
            return label->grab().toImage();
        };
        OrvElidedLabel label;
        if (mode != Qt::ElideRight) // through the designer property
            QVERIFY(label.setProperty("ElideMode", QVariant::fromValue(mode)));
        shot(&label);
        QCOMPARE(label.minimumWidth(), 0); // nothing to shorten
        label.setText(text);
        const QFontMetrics fm = label.fontMetrics();
        QLabel reference(mode == Qt::ElideNone ? text : fm.elidedText(text, mode, 90, Qt::TextShowMnemonic));
        QCOMPARE(shot(&label), shot(&reference));
        if (mode != Qt::ElideNone)
            QCOMPARE(label.minimumWidth(), fm.horizontalAdvance(text.left(1) + QStringLiteral("...")) + 1);
    }

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
        QCOMPARE(tabs.getWidget(group, id), page->frame());
        QCOMPARE(page->frame()->objectName(), objectName);
        QVERIFY(tabs.focusTab(group, id));
        QVERIFY(!tabs.getWidget(group, "other"));
        QVERIFY(!tabs.focusTab(group + "x", id + "x"));
        if (subTabs) {
            auto* inner = qobject_cast<OrvTabWidget*>(tabs.widget(0));
            QVERIFY(inner && inner->isSecondary());
            QCOMPARE(inner->objectName(), group);
            QCOMPARE(inner->count(), 1);
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
        QCOMPARE(tabs.getWidget("G", "titled"), second->frame());
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
        QCOMPARE(tabs.tabText(0), QStringLiteral("Plain again"));
        QVERIFY(!tabs.tabBar()->tabButton(0, QTabBar::LeftSide));
    }

    void closeRequests()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.setSubTabsVisible(true);
        tabs.show();
        Page* changed = add(tabs, "G", "changed", new Page("Changed"));
        tabs.addTab("G", "fixed", (new Page("Fixed", false))->frame(), false, true);
        Page* other = add(tabs, "G", "other", new Page("Other"));
        QPointer<OrvTabWidget> inner = qobject_cast<OrvTabWidget*>(tabs.widget(0));
        QVERIFY(inner->tabBar()->tabButton(1, QTabBar::RightSide)->isHidden());
        inner->slotTabCloseRequested(1); // not closable: nothing
        QCOMPARE(inner->count(), 3);

        changed->slotChangesMade();
        OrvTest::DialogAnswerer answerer;
        answerer.click("Cancel").click("Discard");
        inner->slotTabCloseRequested(0);
        QCOMPARE(inner->count(), 3);
        QVERIFY(changed->hasUnsavedChanges());
        inner->slotTabCloseRequested(0);
        QTRY_COMPARE(inner->count(), 2);
        QCOMPARE(answerer.answered(), 2);
        QVERIFY(!tabs.getWidget("G", "changed"));

        // A group with unsaved changes asks once, showing the first changed page.
        other->slotChangesMade();
        inner->setCurrentIndex(0);
        answerer.click("Cancel");
        tabs.slotTabCloseRequested(0);
        QCOMPARE(answerer.buttons().last(), QStringList({"Discard All", "Cancel"}));
        QVERIFY(inner);
        QCOMPARE(inner->currentWidget(), other->frame());
        answerer.click("Discard All");
        tabs.slotTabCloseRequested(0);
        QTRY_VERIFY(!inner);
        QTRY_COMPARE(tabs.count(), 0);
        QTRY_VERIFY(!tabs.isVisible()); // an empty primary widget hides
    }

    void removingPagesRemovesTabs()
    {
        OrvTabWidget tabs(nullptr, false);
        tabs.setSubTabsVisible(true);
        tabs.show();
        Page* a = add(tabs, "G", "a");
        Page* b = add(tabs, "G", "b");
        Page* c = add(tabs, "G", "c");
        QPointer<QWidget> inner = tabs.widget(0);
        // removeWidget forgets the key only; the tab stays.
        QVERIFY(!tabs.removeWidget(nullptr));
        QVERIFY(tabs.removeWidget(c->frame()));
        QVERIFY(!tabs.getWidget("G", "c"));
        QVERIFY(!tabs.removeWidget(c->frame()));
        QCOMPARE(qobject_cast<OrvTabWidget*>(inner.data())->count(), 3);
        delete c;
        delete a; // the frame follows later
        QTRY_COMPARE(qobject_cast<OrvTabWidget*>(inner.data())->count(), 1);
        b->slotHide(); // leaves the tab through signalHide
        QTRY_VERIFY(!inner); // the empty inner widget deletes itself
        QCOMPARE(tabs.count(), 0);
    }

    // A page destroyed after another page took its key finds no entry: that is said,
    // as for every removal that finds none, and the other page keeps the key.
    void destroyedPageWhoseKeyWasRetakenIsReported()
    {
        OrvTabWidget tabs(nullptr, false);
        Page* first = add(tabs, "G", "a");
        Page* second = add(tabs, "G", "a");
        QTest::ignoreMessage(QtWarningMsg, "OrvTabWidget::onRemoveTab: widget to remove was not on tab map!");
        delete first->frame();
        QCOMPARE(tabs.getWidget("G", "a"), second->frame());
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
        tabs.addTab("G", "b", b->frame(), true, false);
        QSignalSpy focused(b, &OrvDialog::signalFocused);
        auto colour = [&](int i) { return qobject_cast<CloseButton*>(tabs.tabBar()->tabButton(i, QTabBar::RightSide))->fontColor(); };
        QVERIFY(Styles::TabBarTabStyle::primarySelected() != Styles::TabBarTabStyle::primaryNormal());
        QCOMPARE(colour(0), Styles::TabBarTabStyle::primarySelected());
        QCOMPARE(colour(1), Styles::TabBarTabStyle::primaryNormal());
        // Only the page in front takes updates, so that switching stays cheap
        // however many pages are open; a page taken elsewhere paints again.
        QVERIFY(first->frame()->updatesEnabled());
        QVERIFY(!b->frame()->updatesEnabled());
        tabs.setCurrentIndex(1);
        QCOMPARE(focused.count(), 1);
        QCOMPARE(colour(0), Styles::TabBarTabStyle::primaryNormal());
        QCOMPARE(colour(1), Styles::TabBarTabStyle::primarySelected());
        QVERIFY(b->frame()->updatesEnabled());
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

QTEST_MAIN(TestOrvContainers)
#include "tst_orv_containers.moc"
