// Drives the demo application the way an operator does: every menu button,
// every page, the exercise life cycle, links, locks, waits, both languages.

#include "demo_controller.h"
#include "event_log_model.h"
#include "exercise.h"
#include "orv_test_support.h"
#include "pages/event_log_page.h"
#include "pages/participants_page.h"

#include <dax_translation.h>
#include <orv_base_layout_widget.h>
#include <orv_column_filter_proxy_model.h>
#include <orv_dialog_helper.h>
#include <orv_drag_icon.h>
#include <orv_events.h>
#include <orv_operator_menu.h>
#include <orv_tab_widget.h>

#include <QtTest>
#include <QtWidgets>

using namespace OrvWidgets;

namespace {

QStringList g_problems;
QtMessageHandler g_previous = nullptr;

// Every warning counts, except Qt's own platform notes.
void collectProblems(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const QLatin1String category(context.category ? context.category : "");
    if (type != QtDebugMsg && type != QtInfoMsg && !category.startsWith(QLatin1String("qt."))
        && !message.contains(QLatin1String("XDG_RUNTIME_DIR"))
        && !message.startsWith(QLatin1String("This plugin does not support")))
        g_problems << QStringLiteral("%1: %2").arg(category, message);
    if (g_previous)
        g_previous(type, context, message);
}

OrvDialog* currentPage(OrvBaseLayoutWidget* shell, LayoutArea area)
{
    QWidget* current = shell->getTabFromLayoutArea(area)->currentWidget();
    while (auto* nested = qobject_cast<OrvTabWidget*>(current))
        current = nested->currentWidget();
    auto* helper = qobject_cast<OrvDialogHelper*>(current);
    return helper ? helper->getDialog() : nullptr;
}

} // namespace

class DemoSmokeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        g_previous = qInstallMessageHandler(collectProblems);
        Dax::setTranslationLocale("en_GB", QStringLiteral("qeb"));
        m_demo = new DemoController;
        m_demo->setSimulationDelays(200, 100);
        shell()->resize(1440, 900);
        shell()->show();
        shell()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(shell()));
    }

    void everyMenuButtonInEveryState()
    {
        Exercise* exercise = m_demo->exercise();
        QSet<QString> opened;
        // Created, started, paused, stopped: each state shows its own entries.
        for (int state = 0; state < 4; ++state) {
            QVERIFY(state == 0 || (state == 1 ? exercise->start() : state == 2 ? exercise->pause() : exercise->stop()));
            const auto buttons = shell()->mapButtons();
            for (auto it = buttons.cbegin(); it != buttons.cend(); ++it) {
                if (!it.key()->buttonVisible())
                    continue;
                const PluginData& data = it.value();
                // As the operator does: choose the part, open the group, click.
                static const char* const parts[] = {"pbPlanning", "pbExecution", "pbAfterAction", "pbSpecial"};
                auto* part = shell()->getMenu()->findChild<QAbstractButton*>(parts[data.exercisePart]);
                QVERIFY(part && part->isVisible());
                part->click();
                QToolBox* box = nullptr;
                for (QWidget* w = it.key(); w && !box; w = w->parentWidget())
                    box = qobject_cast<QToolBox*>(w);
                QVERIFY(box);
                for (int i = 0; i < box->count(); ++i)
                    if (box->widget(i)->isAncestorOf(it.key()))
                        box->setCurrentIndex(i);
                QVERIFY2(it.key()->toolButton()->isVisible(), qPrintable(data.identifier));
                QTest::mouseClick(it.key()->toolButton(), Qt::LeftButton);
                if (data.createWidgetFunc) {
                    OrvDialog* page = currentPage(shell(), data.layoutArea);
                    QVERIFY2(page && page->identifier() == data.identifier, qPrintable(data.identifier));
                    opened << data.identifier;
                }
            }
        }
        // Every page but the one the operator lacks the right for.
        QVERIFY2(opened.size() == 7, qPrintable(QStringList(opened.cbegin(), opened.cend()).join(' ')));
        QVERIFY(exercise->reset());
    }

    void toolBarAndFunctionKeysRunEntries()
    {
        QCOMPARE(shell()->toolBarActions(), QStringList({"run.control", "plan.participants", "tools.notify"}));
        QVERIFY(m_demo->openEntry(QStringLiteral("plan.setup")));
        QCOMPARE(currentPage(shell(), eMainTab)->identifier(), QStringLiteral("plan.setup"));
        // The server wait of the first test fades out first; it blocks the keys while shown.
        QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activeModalWidget(), 10000);
        shell()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(shell()));
        QTest::keyClick(shell(), Qt::Key_F6);
        QCOMPARE(currentPage(shell(), eMainTab)->identifier(), QStringLiteral("plan.participants"));
    }

    void linksFromNotificationsAreHandled()
    {
        QSignalSpy handled(m_demo, &DemoController::linkHandled);
        m_demo->showTestNotifications();
        postToApplication(new OrvLinkEvent(QUrl(QStringLiteral("orv://ParticipantInfo/19")), shell()));
        QTRY_COMPARE(handled.count(), 1);
        auto* page = qobject_cast<ParticipantsPage*>(currentPage(shell(), eMainTab));
        QVERIFY(page && page->proxy()->rowCount() == 1);
        QCOMPARE(page->proxy()->index(0, 0).data().toInt(), 19);

        postToApplication(new OrvLinkEvent(QUrl(QStringLiteral("orv://NotificationAck/test-info")), shell()));
        QTRY_COMPARE(handled.count(), 2);
        const QAbstractItemModel* log = m_demo->eventLog();
        const QString last = log->index(log->rowCount() - 1, EventLogModel::TextColumn).data().toString();
        QVERIFY2(last.contains("test-info"), qPrintable(last));
    }

    // A second operator makes the plan read-only for a while; apply insists on a name.
    void planLockAndRequirements()
    {
        QVERIFY(m_demo->openEntry(QStringLiteral("plan.setup")));
        OrvDialog* page = currentPage(shell(), eMainTab);
        auto* name = page->findChild<QLineEdit*>(QStringLiteral("leName"));
        QVERIFY(!name->isReadOnly());
        m_demo->simulateSecondOperator();
        QCOMPARE(page->topicLockedBy(), QStringLiteral("Bravo"));
        QVERIFY(name->isReadOnly());
        QTRY_VERIFY(!m_demo->isPlanHeldByOtherOperator());
        QVERIFY(!name->isReadOnly());

        QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(name, Qt::Key_Delete);
        OrvTest::DialogAnswerer answerer;
        answerer.click(QStringLiteral("Ok"));
        auto* apply = page->getHelper()->findChild<QPushButton*>(QStringLiteral("pbApply"));
        apply->click();
        QTRY_COMPARE(answerer.texts().size(), 1);
        QVERIFY(page->hasUnsavedChanges());
        QTest::keyClicks(name, QStringLiteral("Southern Cross"));
        apply->click();
        QCOMPARE(m_demo->exercise()->name(), QStringLiteral("Southern Cross"));
        QVERIFY(!page->hasUnsavedChanges());
    }

    // A set-up page open when the exercise starts is the running exercise's: read-only,
    // nothing to apply, until the exercise is back to a state that plans.
    void planIsLockedWhileTheExerciseRuns()
    {
        Exercise* exercise = m_demo->exercise();
        if (exercise->canReset())
            QVERIFY(exercise->reset());
        QVERIFY(exercise->canStart());
        QVERIFY(m_demo->openEntry(QStringLiteral("plan.setup")));
        OrvDialog* page = currentPage(shell(), eMainTab);
        auto* name = page->findChild<QLineEdit*>(QStringLiteral("leName"));
        auto* apply = page->getHelper()->findChild<QPushButton*>(QStringLiteral("pbApply"));
        QTest::keyClicks(name, QStringLiteral(" II"));
        QVERIFY(apply->isEnabled());
        const QString before = exercise->name();

        QVERIFY(exercise->start());
        QVERIFY(name->isReadOnly());
        QVERIFY(!apply->isEnabled());
        QMetaObject::invokeMethod(page, "slotApply");
        QCOMPARE(exercise->name(), before);
        // The refusal is logged; here it was asked for.
        QCOMPARE(g_problems.size(), 1);
        QVERIFY(g_problems.takeFirst().contains(QLatin1String("refused: topic locked by the running exercise")));

        QVERIFY(exercise->stop());
        QVERIFY(!name->isReadOnly());
        QVERIFY(apply->isEnabled());
        apply->click();
        QCOMPARE(exercise->name(), before + QStringLiteral(" II"));
    }

    void slowServerRequestCoversThePage()
    {
        QVERIFY(m_demo->openEntry(QStringLiteral("run.log")));
        auto* page = qobject_cast<EventLogPage*>(currentPage(shell(), eDialogTab));
        QVERIFY(page);
        page->requestServerStatus();
        QVERIFY(page->isWaiting() && !page->isClosable());
        QTRY_VERIFY(!page->isWaiting());
        QVERIFY(page->isClosable());
    }

    // As the operator does it: the language buttons of the operator menu.
    void languageSwitchesLiveAndBack()
    {
        const auto chooseLanguage = [this](const char* buttonName) {
            QVERIFY(QMetaObject::invokeMethod(shell(), "slotOperatorMenuClicked"));
            auto* menu = shell()->findChildren<OrvOperatorMenu*>().last();
            menu->findChild<QAbstractButton*>(QLatin1String(buttonName))->click();
            menu->close();
        };
        QAbstractButton* participants = shell()->findChild<OrvDragIcon*>("plan.participants")->toolButton();
        m_demo->openEntry(QStringLiteral("run.control"));
        QPushButton* start = currentPage(shell(), eInfoTab)->findChild<QPushButton*>(QStringLiteral("pbStart"));
        const auto english = qScopeGuard([] { Dax::setTranslationLocale("en_GB", QStringLiteral("qeb")); });
        chooseLanguage("pbGer");
        QTRY_COMPARE(participants->text(), QStringLiteral("Teilnehmer"));
        QTRY_COMPARE(start->text(), QStringLiteral("Starten"));
        QCOMPARE(shell()->getTabFromLayoutArea(eInfoTab)->tabText(0), QStringLiteral("Übungssteuerung"));
        chooseLanguage("pbInt");
        QTRY_COMPARE(participants->text(), QStringLiteral("Participants"));
        QTRY_COMPARE(start->text(), QStringLiteral("Start"));
    }

    void closingAsksForUnsavedChangesThenCloses()
    {
        QSignalSpy closed(m_demo, &DemoController::closeRequested);
        QVERIFY(m_demo->openEntry(QStringLiteral("tools.settings")));
        currentPage(shell(), eDialogTab)->slotChangesMade();
        OrvTest::DialogAnswerer answerer;
        answerer.click(QStringLiteral("Discard All"));
        shell()->close();
        QCOMPARE(answerer.answered(), 1);
        QCOMPARE(closed.count(), 1);
        QVERIFY(!shell()->isVisible());
    }

    void cleanupTestCase()
    {
        delete m_demo;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        qInstallMessageHandler(g_previous);
        QVERIFY2(g_problems.isEmpty(), qPrintable(g_problems.join(QLatin1Char('\n'))));
    }

private:
    OrvBaseLayoutWidget* shell() const { return m_demo->shell(); }
    DemoController* m_demo = nullptr;
};

QTEST_MAIN(DemoSmokeTest)
#include "tst_demo_smoke.moc"
