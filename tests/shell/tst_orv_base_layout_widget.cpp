#include <orv_base_layout_widget.h>
#include <orv_drag_icon.h>
#include <orv_session_data.h>
#include <orv_settings.h>
#include <orv_tab_widget.h>
#include <orv_test_support.h>
#include <orv_test_widgets.h>
#include <orv_tool_box.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {

using Page = OrvTest::EditPage;

// A shell whose menu entries count the pages they create.
class Shell : public OrvBaseLayoutWidget
{
public:
    explicit Shell(bool partButtons = true) : OrvBaseLayoutWidget(nullptr, partButtons) {}

    PluginData entry(const QString& id, const QString& group = "G", ExercisePart part = eSpecial,
                     LayoutArea area = eDialogTab)
    {
        const auto create = [this](QWidget*) -> OrvDialog* {
            ++created;
            return new Page;
        };
        PluginData data(id + " text", group, id, create, 0, part);
        data.layoutArea = area;
        return data;
    }
    OrvDragIcon* add(const QString& id, const QString& group = "G", ExercisePart part = eSpecial,
                     LayoutArea area = eDialogTab)
    {
        return addMenuAction(entry(id, group, part, area), false);
    }
    OrvToolBox* toolBox(const char* name) { return findChild<OrvToolBox*>(QLatin1String(name)); }

    int created = 0;
};

} // namespace

class TestOrvBaseLayoutWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { OrvSessionData::OrvSessionData::getInstance()->setOperatorRights(0); }

    // A collapsed dialog or info section opens when a page is added to it or a refused
    // duplicate is focused there: the operator must see the page asked for.
    void collapsedSectionOpens_data()
    {
        QTest::addColumn<int>("area");
        QTest::addColumn<QString>("splitter");
        QTest::addColumn<bool>("duplicate");
        QTest::newRow("dialog, second page") << int(eDialogTab) << "mainSplitter" << false;
        QTest::newRow("dialog, duplicate") << int(eDialogTab) << "mainSplitter" << true;
        QTest::newRow("info, second page") << int(eInfoTab) << "masterSplitter" << false;
        QTest::newRow("info, duplicate") << int(eInfoTab) << "masterSplitter" << true;
    }
    void collapsedSectionOpens()
    {
        QFETCH(int, area);
        QFETCH(QString, splitter);
        const QString splitterName = splitter;
        QFETCH(bool, duplicate);
        Shell shell;
        shell.resize(1600, 1000);
        shell.show();
        QVERIFY(QTest::qWaitForWindowExposed(&shell));
        QVERIFY(shell.addWidget(new Page, "G", "first", LayoutArea(area), true, true));
        auto* split = shell.findChild<QSplitter*>(splitterName);
        QWidget* section = shell.getTabFromLayoutArea(LayoutArea(area));
        const int index = split->indexOf(section);
        QVERIFY(index >= 0);
        QList<int> sizes = split->sizes();
        sizes[index] = 0;
        split->setSizes(sizes);
        QCOMPARE(split->sizes().at(index), 0);

        if (duplicate) {
            auto* second = new Page;
            QVERIFY(!shell.addWidget(second, "G", "first", LayoutArea(area), true, true));
        } else {
            QVERIFY(shell.addWidget(new Page, "H", "second", LayoutArea(area), true, true));
        }
        QTRY_VERIFY(split->sizes().at(index) > 50);
    }

    void areasAndBadInput()
    {
        Shell shell;
        const char* const tabs[] = {"detailWidget", "infoWidget", "detailWidget", "specialWidget", "mainWidget"};
        for (int area = eUnknown; area <= eMainTab; ++area)
            QCOMPARE(shell.getTabFromLayoutArea(LayoutArea(area))->objectName(), QLatin1String(tabs[area]));
        QTest::ignoreMessage(QtWarningMsg, "OrvBaseLayoutWidget::addWidget: cannot add null-widget!");
        QVERIFY(!shell.addWidget(nullptr, "G", "I", eMainTab, true, true));
        QTest::ignoreMessage(QtWarningMsg, "OrvBaseLayoutWidget::addWidget: tab, by enum type, not found!");
        QPointer<Page> page = new Page;
        QVERIFY(!shell.addWidget(page, "G", "I", LayoutArea(9), true, true));
        delete page;
        QTest::ignoreMessage(QtWarningMsg, "OrvBaseLayoutWidget::focusTab: tab, by enum type, not found!");
        QVERIFY(!shell.focusTab("G", "I", LayoutArea(9)));
    }

    void pagesOpenInTheirAreaComeToFrontAndHide()
    {
        Shell shell;
        shell.show();
        QSignalSpy staple(&shell, &OrvBaseLayoutWidget::signalStapleTopicLockHandler);
        auto* page = new Page;
        QVERIFY(shell.addWidget(page, "Planning", "setup", eMainTab, true, true));
        QCOMPARE(staple.count(), 1);
        QCOMPARE(shell.getWidget("Planning", "setup", eMainTab), page);
        QVERIFY(!shell.getWidget("Planning", "setup", eDialogTab));
        QVERIFY(shell.isDialogFocused(page));

        // Same key again: refused, the new page is discarded, the old one focused.
        QPointer<Page> duplicate = new Page;
        QVERIFY(!shell.addWidget(duplicate, "Planning", "setup", eMainTab, true, true));
        QTRY_VERIFY(!duplicate);
        QCOMPARE(shell.getWidget("Planning", "setup", eMainTab), page);

        // An empty identifier always adds a new tab.
        for (int i = 0; i < 2; ++i)
            QVERIFY(shell.addWidget(new Page, "Planning", "", eMainTab, true, true));
        QCOMPARE(shell.getTabFromLayoutArea(eMainTab)->count(), 3);
        QVERIFY(shell.focusTab("Planning", "setup", eMainTab));
        QVERIFY(shell.isDialogFocused(page));

        QPointer<Page> first = page;
        QVERIFY(shell.addOrReplaceWidget(page = new Page, "Planning", "setup", eMainTab, true, true));
        QCOMPARE(shell.getWidget("Planning", "setup", eMainTab), page);
        QTRY_VERIFY(!first);

        shell.addWidget(new Page, "G", "info", eInfoTab, true, true);
        auto* info = shell.getTabFromLayoutArea(eInfoTab);
        QVERIFY(info->isVisible());
        shell.hideVisibleLayouts();
        QVERIFY(!info->isVisible());
        QTest::ignoreMessage(QtWarningMsg, "OrvBaseLayoutWidget::hideVisibleLayouts: old states available - ignoring");
        shell.hideVisibleLayouts();
        shell.resetLayoutVisibility();
        QVERIFY(info->isVisible() && shell.getTabFromLayoutArea(eMainTab)->isVisible());
        shell.setIrreplaceableOnce();
        QVERIFY(shell.irreplaceableReset() && !shell.irreplaceableReset());
    }

    void menuEntriesOpenPagesOnceAndDrivePartButtons()
    {
        Shell shell;
        shell.show();
        auto* planning = shell.findChild<QPushButton*>("pbPlanning");
        auto* execution = shell.findChild<QPushButton*>("pbExecution");
        OrvDragIcon* setup = shell.add("setup", "Exercise", ePlanning);
        QVERIFY(planning->isHidden()); // one part only: no part buttons
        OrvDragIcon* log = shell.add("log", "Monitoring", eExecution, eMainTab);
        QVERIFY(!planning->isHidden() && !execution->isHidden() && execution->isChecked());
        QCOMPARE(setup->objectName(), QStringLiteral("setup"));
        QCOMPARE(shell.toolBox("naviActionsPlanning")->count(), 1);
        QCOMPARE(shell.toolBox("naviActionsExecution")->count(), 1);
        QCOMPARE(shell.toolBox("naviActionsPlanning")->itemText(0), QStringLiteral("Exercise"));

        Q_EMIT setup->clicked();
        QVERIFY(shell.getWidget("Exercise", "setup", eDialogTab));
        Q_EMIT setup->clicked(); // open already: focused, not created again
        QCOMPARE(shell.created, 1);
        shell.executeAction("log");
        shell.executeAction("nothing"); // no entry: nothing happens
        QCOMPARE(shell.created, 2);
        QVERIFY(shell.getWidget("Monitoring", "log", eMainTab));

        QVERIFY(shell.removeMenuAction(log));
        QCOMPARE(shell.toolBox("naviActionsExecution")->count(), 0); // the emptied group is gone
        QVERIFY(planning->isHidden());
        QVERIFY(!shell.removeMenuAction(QStringLiteral("log")));
        QVERIFY(shell.removeMenuAction(shell.entry("setup", "Exercise", ePlanning)));
        QVERIFY(shell.mapButtons().isEmpty());

        Shell withoutParts(false); // everything goes to the special group
        withoutParts.add("a", "G1", ePlanning);
        QCOMPARE(withoutParts.toolBox("naviActionsSpecial")->count(), 1);
        QCOMPARE(withoutParts.toolBox("naviActionsPlanning")->count(), 0);
    }

    void rightsUpdatesSeparatorsAndStates()
    {
        Shell shell;
        PluginData secret = shell.entry("secret");
        secret.operatorRight = 4;
        QVERIFY(!shell.addMenuAction(secret, false));
        OrvSessionData::OrvSessionData::getInstance()->setOperatorRights(4);
        QVERIFY(shell.addMenuAction(secret, false));

        secret.menuText = "Renamed";
        secret.menuGroup = "Other";
        QVERIFY(!shell.addMenuAction(secret, false)); // updated in place
        OrvDragIcon* button = shell.mapButtons().firstKey();
        QCOMPARE(button->text(), QStringLiteral("Renamed"));
        QCOMPARE(button->context(), QStringLiteral("Other"));
        QCOMPARE(shell.toolBox("naviActionsSpecial")->itemText(0), QStringLiteral("Other"));

        QVERIFY(!shell.addMenuAction(PluginData::createGroup("G", "sep"), false)); // separator: no button
        QVERIFY(shell.toolBox("naviActionsSpecial")->widget(0)->findChild<QFrame*>());
        QVERIFY(!shell.addMenuAction(PluginData::createGroup("Unknown", "sep2"), false));
        QCOMPARE(shell.toolBox("naviActionsSpecial")->count(), 1); // no group made for a separator

        PluginData onlyCreated = shell.entry("c");
        onlyCreated.exerciseStates = ExerciseState::eCreated;
        OrvDragIcon* c = shell.addMenuAction(onlyCreated, false);
        ExerciseData data;
        data.exState = ExerciseState::eStarted;
        shell.setExerciseData(data);
        QVERIFY(!c->buttonVisible() && button->buttonVisible());
        data.exState = ExerciseState::eCreated;
        shell.setExerciseData(data);
        QVERIFY(c->buttonVisible());
    }

    void developerMessagesForBrokenEntries()
    {
        Shell shell;
        OrvTest::DialogAnswerer answerer;
        answerer.click("Ok").click("Ok");
        QVERIFY(!shell.add("", "G"));
        QVERIFY(!shell.add("id", ""));
        QCOMPARE(answerer.answered(), 2);
        const QString stop("STOP!\nHier wurde ein Menu Entry hinzugefuegt, welcher ueber %1 verfuegt!");
        QVERIFY2(answerer.texts().at(0).startsWith(stop.arg("keinen Identifier")), qPrintable(answerer.texts().at(0)));
        QVERIFY2(answerer.texts().at(1).startsWith(stop.arg("keine Menu Group")), qPrintable(answerer.texts().at(1)));
        for (const QString& text : answerer.texts())
            QVERIFY(text.endsWith("um welchen Menu Entry es sich handelt =)"));
        QVERIFY(shell.mapButtons().isEmpty());
    }

    // Instant entries run both functions when executed; a discarded one leaves no button.
    void instantEntriesAndNullPages()
    {
        for (const CreateInstantType instant : {CreateInstantAndAddAction, CreateInstantAndDiscardAction}) {
            for (const bool execute : {true, false}) {
                Shell shell;
                int direct = 0;
                PluginData data = shell.entry("instant");
                data.directFunc = [&direct](const PluginData& d) { direct += d.identifier == "instant"; };
                data.createInstant = instant;
                shell.addMenuAction(data, execute);
                QCOMPARE(shell.created, int(execute));
                QCOMPARE(direct, int(execute));
                QCOMPARE(shell.mapButtons().isEmpty(), instant == CreateInstantAndDiscardAction);
            }
        }
        Shell shell; // a page function that returns nothing leaves the shell usable; an action runs on click
        Q_EMIT shell.addMenuAction({"Broken", "G", "broken", [](QWidget*) -> OrvDialog* { return nullptr; }}, false)->clicked();
        QCOMPARE(shell.getTabFromLayoutArea(eDialogTab)->count(), 0);
        int direct = 0;
        PluginData action("Action", "G", "action", nullptr);
        action.directFunc = [&direct](const PluginData& d) { direct += d.identifier == "action"; };
        Q_EMIT shell.addMenuAction(action, false)->clicked();
        QCOMPARE(direct, 1);
    }

    // Tool bar entries not added yet wait for their buttons; F-keys open pages; both survive a restart in order.
    void toolBarAndFunctionKeysAreStored()
    {
        QTemporaryDir dir;
        OrvUtils::OperatorSettings::getInstance()->setFileName(dir.filePath("operator.ini"));
        {
            Shell shell;
            shell.show();
            shell.add("a");
            QCoreApplication::processEvents();
            shell.setToolBarActions({"a", "later"});
            QCOMPARE(shell.toolBarActions(), QStringList({"a"}));
            shell.add("later");
            QCOMPARE(shell.toolBarActions(), QStringList({"a", "later"}));
            shell.setFunctionKeys({{Qt::Key_F5, "later"}});
            shell.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&shell));
            QTest::keyClick(&shell, Qt::Key_F5);
            QCOMPARE(shell.created, 1);
            QVERIFY(shell.getWidget("G", "later", eDialogTab));
        }
        Shell shell;
        shell.add("later");
        shell.add("a");
        QTRY_COMPARE(shell.toolBarActions(), QStringList({"a", "later"}));
        QCOMPARE(shell.functionKeys().value(Qt::Key_F5), QStringLiteral("later"));
    }

    // No leak, no crash (sanitizer build) with pages, animations and a sliding-in message under way.
    void destroyedWithOpenPagesAndAnimations()
    {
        auto* shell = new Shell;
        shell->show();
        shell->add("a");
        shell->executeAction("a");
        shell->addWidget(new Page, "G", "b", eDialogTab, true, true);
        shell->onHideAnimated();
        shell->showMessage("t", "x", OrvNotificationBox::Error);
        QTest::qWait(100); // the slide-in runs for 700 ms
        delete shell;
        QTest::qWait(50);
    }
};

QTEST_MAIN(TestOrvBaseLayoutWidget)
#include "tst_orv_base_layout_widget.moc"
