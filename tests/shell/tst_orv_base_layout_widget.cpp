#include <orv_base_layout_widget.h>
#include <orv_dialog.h>
#include <orv_dialog_helper.h>
#include <orv_drag_icon.h>
#include <orv_session_data.h>
#include <orv_settings.h>
#include <orv_tab_widget.h>
#include <orv_test_support.h>
#include <orv_test_widgets.h>
#include <orv_tool_bar_area.h>
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
        PluginData data(id + " text", group, id,
                        [this](QWidget*) -> OrvDialog* {
                            ++created;
                            return new Page;
                        },
                        0, part);
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

    void formAndAreas_data()
    {
        QTest::addColumn<int>("area");
        QTest::addColumn<QString>("tabWidget");
        QTest::newRow("unknown") << int(eUnknown) << "detailWidget";
        QTest::newRow("info") << int(eInfoTab) << "infoWidget";
        QTest::newRow("dialog") << int(eDialogTab) << "detailWidget";
        QTest::newRow("special") << int(eSpecialTab) << "specialWidget";
        QTest::newRow("main") << int(eMainTab) << "mainWidget";
    }
    void formAndAreas()
    {
        QFETCH(int, area);
        QFETCH(QString, tabWidget);
        OrvBaseLayoutWidget shell(nullptr, true);
        QCOMPARE(shell.getTabFromLayoutArea(LayoutArea(area))->objectName(), tabWidget);
        QVERIFY(!shell.getTabFromLayoutArea(LayoutArea(17)));
        QCOMPARE(shell.minimumSize(), QSize(1280, 900));
        for (const char* name : {"masterSplitter", "mainSplitter", "rightSplitter"})
            QCOMPARE(shell.findChild<QSplitter*>(name)->handleWidth(), 10);
    }

    void pagesOpenInTheirAreaAndComeToFront()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        QSignalSpy staple(&shell, &OrvBaseLayoutWidget::signalStapleTopicLockHandler);
        auto* page = new Page;
        QVERIFY(shell.addWidget(page, "Planning", "setup", eMainTab, true, true));
        QCOMPARE(staple.count(), 1);
        QCOMPARE(shell.getWidget("Planning", "setup", eMainTab), page);
        QVERIFY(!shell.getWidget("Planning", "setup", eDialogTab));
        QVERIFY(shell.isDialogFocused(page));
        QCOMPARE(page->identifier(), QStringLiteral("setup"));
        QCOMPARE(page->menuGroup(), QStringLiteral("Planning"));

        // Same key again: refused, the new page is discarded, the old one focused.
        QPointer<Page> duplicate = new Page;
        QVERIFY(!shell.addWidget(duplicate, "Planning", "setup", eMainTab, true, true));
        QTRY_VERIFY(!duplicate);
        QCOMPARE(shell.getWidget("Planning", "setup", eMainTab), page);

        // An empty identifier always adds a new tab.
        QVERIFY(shell.addWidget(new Page, "Planning", "", eMainTab, true, true));
        QVERIFY(shell.addWidget(new Page, "Planning", "", eMainTab, true, true));
        QCOMPARE(shell.getTabFromLayoutArea(eMainTab)->count(), 3);
        QVERIFY(shell.focusTab("Planning", "setup", eMainTab));
        QVERIFY(shell.isDialogFocused(page));

        QPointer<Page> first = page;
        auto* second = new Page;
        QVERIFY(shell.addOrReplaceWidget(second, "Planning", "setup", eMainTab, true, true));
        QCOMPARE(shell.getWidget("Planning", "setup", eMainTab), second);
        QTRY_VERIFY(!first);
    }

    void badInput()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        QTest::ignoreMessage(QtWarningMsg, "OrvBaseLayoutWidget::addWidget: cannot add null-widget!");
        QVERIFY(!shell.addWidget(nullptr, "G", "I", eMainTab, true, true));
        QTest::ignoreMessage(QtWarningMsg, "OrvBaseLayoutWidget::addWidget: tab, by enum type, not found!");
        QPointer<Page> page = new Page;
        QVERIFY(!shell.addWidget(page, "G", "I", LayoutArea(9), true, true));
        delete page;
        QTest::ignoreMessage(QtWarningMsg, "OrvBaseLayoutWidget::focusTab: tab, by enum type, not found!");
        QVERIFY(!shell.focusTab("G", "I", LayoutArea(9)));
    }

    void layoutVisibility()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        shell.addWidget(new Page, "G", "info", eInfoTab, true, true);
        auto* info = shell.getTabFromLayoutArea(eInfoTab);
        QVERIFY(info->isVisible());
        shell.hideVisibleLayouts();
        QVERIFY(!info->isVisible());
        QTest::ignoreMessage(QtWarningMsg, "OrvBaseLayoutWidget::hideVisibleLayouts: old states available - ignoring");
        shell.hideVisibleLayouts();
        shell.resetLayoutVisibility();
        QVERIFY(info->isVisible());
        QVERIFY(shell.getTabFromLayoutArea(eMainTab)->isVisible());

        shell.showWidgets();
        QVERIFY(shell.isWidgetsHidden()); // true while shown: the interface's sense
        shell.hideWidgets();
        QVERIFY(!shell.isWidgetsHidden());

        QVERIFY(!shell.isIrreplaceable());
        shell.setIrreplaceableOnce();
        QVERIFY(shell.isIrreplaceable());
        QVERIFY(shell.irreplaceableReset());
        QVERIFY(!shell.irreplaceableReset());
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
        QVERIFY(setup && log);
        QVERIFY(!planning->isHidden());
        QVERIFY(!execution->isHidden());
        QVERIFY(execution->isChecked());
        QCOMPARE(setup->objectName(), QStringLiteral("setup"));
        QCOMPARE(shell.toolBox("naviActionsPlanning")->count(), 1);
        QCOMPARE(shell.toolBox("naviActionsExecution")->count(), 1);
        QCOMPARE(shell.toolBox("naviActionsPlanning")->itemText(0), QStringLiteral("Exercise"));

        Q_EMIT setup->clicked();
        QCOMPARE(shell.created, 1);
        QVERIFY(shell.getWidget("Exercise", "setup", eDialogTab));
        Q_EMIT setup->clicked(); // open already: focused, not created again
        QCOMPARE(shell.created, 1);
        shell.executeAction("log");
        QCOMPARE(shell.created, 2);
        QVERIFY(shell.getWidget("Monitoring", "log", eMainTab));
        shell.executeAction("nothing"); // no entry: nothing happens

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

    void rightsUpdatesAndSeparators()
    {
        Shell shell;
        PluginData secret = shell.entry("secret");
        secret.operatorRight = 4;
        QVERIFY(!shell.addMenuAction(secret, false));
        OrvSessionData::OrvSessionData::getInstance()->setOperatorRights(4);
        QVERIFY(shell.addMenuAction(secret, false));

        PluginData renamed = secret;
        renamed.menuText = "Renamed";
        renamed.menuGroup = "Other";
        QVERIFY(!shell.addMenuAction(renamed, false)); // updated in place
        OrvDragIcon* button = shell.mapButtons().firstKey();
        QCOMPARE(button->text(), QStringLiteral("Renamed"));
        QCOMPARE(button->context(), QStringLiteral("Other"));
        QCOMPARE(shell.toolBox("naviActionsSpecial")->itemText(0), QStringLiteral("Other"));

        QVERIFY(!shell.addMenuAction(PluginData::createGroup("G", "sep"), false)); // separator: no button
        QVERIFY(shell.toolBox("naviActionsSpecial")->widget(0)->findChild<QFrame*>());
        QVERIFY(!shell.addMenuAction(PluginData::createGroup("Unknown", "sep2"), false));
        QCOMPARE(shell.toolBox("naviActionsSpecial")->count(), 1); // no group made for a separator
    }

    void developerMessagesForBrokenEntries_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("start");
        QTest::newRow("no identifier") << "" << "G" << "STOP!\nHier wurde ein Menu Entry hinzugefuegt, welcher ueber keinen Identifier";
        QTest::newRow("no group") << "id" << "" << "STOP!\nHier wurde ein Menu Entry hinzugefuegt, welcher ueber keine Menu Group";
    }
    void developerMessagesForBrokenEntries()
    {
        QFETCH(QString, id);
        QFETCH(QString, group);
        QFETCH(QString, start);
        Shell shell;
        OrvTest::DialogAnswerer answerer;
        answerer.click("Ok");
        QVERIFY(!shell.add(id, group));
        QCOMPARE(answerer.answered(), 1);
        QVERIFY2(answerer.texts().first().startsWith(start), qPrintable(answerer.texts().first()));
        QVERIFY(answerer.texts().first().endsWith("um welchen Menu Entry es sich handelt =)"));
        QVERIFY(shell.mapButtons().isEmpty());
    }

    void instantEntries_data()
    {
        QTest::addColumn<int>("instant");
        QTest::addColumn<bool>("execute");
        QTest::addColumn<int>("created");
        QTest::addColumn<bool>("listed");
        QTest::newRow("add, executed") << int(CreateInstantAndAddAction) << true << 1 << true;
        QTest::newRow("add, not executed") << int(CreateInstantAndAddAction) << false << 0 << true;
        QTest::newRow("discard, executed") << int(CreateInstantAndDiscardAction) << true << 1 << false;
        QTest::newRow("discard, not executed") << int(CreateInstantAndDiscardAction) << false << 0 << false;
    }
    void instantEntries()
    {
        QFETCH(int, instant);
        QFETCH(bool, execute);
        QFETCH(int, created);
        QFETCH(bool, listed);
        Shell shell;
        int direct = 0;
        PluginData data = shell.entry("instant");
        data.directFunc = [&direct](const PluginData&) { ++direct; };
        data.createInstant = CreateInstantType(instant);
        shell.addMenuAction(data, execute);
        QCOMPARE(shell.created, created);
        QCOMPARE(direct, created); // an instant entry runs both functions
        QCOMPARE(!shell.mapButtons().isEmpty(), listed);
    }

    void nullPageLeavesTheShellUsable()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        PluginData broken("Broken", "G", "broken", [](QWidget*) -> OrvDialog* { return nullptr; });
        OrvDragIcon* button = shell.addMenuAction(broken, false);
        Q_EMIT button->clicked();
        QCOMPARE(shell.getTabFromLayoutArea(eDialogTab)->count(), 0);
        int direct = 0;
        PluginData action("Action", "G", "action", nullptr);
        action.directFunc = [&direct](const PluginData& d) { direct += d.identifier == "action"; };
        Q_EMIT shell.addMenuAction(action, false)->clicked();
        QCOMPARE(direct, 1);
    }

    void exerciseStateHidesButtons()
    {
        Shell shell;
        PluginData onlyCreated = shell.entry("c");
        onlyCreated.exerciseStates = ExerciseState::eCreated;
        OrvDragIcon* c = shell.addMenuAction(onlyCreated, false);
        OrvDragIcon* all = shell.add("all");
        ExerciseData data;
        data.exState = ExerciseState::eStarted;
        shell.setExerciseData(data);
        QVERIFY(!c->buttonVisible());
        QVERIFY(all->buttonVisible());
        data.exState = ExerciseState::eCreated;
        shell.setExerciseData(data);
        QVERIFY(c->buttonVisible());
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
            QCOMPARE(shell.functionKeys().value(Qt::Key_F5), QStringLiteral("later"));
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

    void destroyedWithOpenPagesAndAnimation()
    {
        auto* shell = new Shell;
        shell->show();
        shell->add("a");
        shell->executeAction("a");
        shell->addWidget(new Page, "G", "b", eDialogTab, true, true);
        shell->onHideAnimated();
        shell->showMessage("t", "x", OrvNotificationBox::Info);
        delete shell; // no leak, no crash (sanitizer build)
    }
};

QTEST_MAIN(TestOrvBaseLayoutWidget)
#include "tst_orv_base_layout_widget.moc"
