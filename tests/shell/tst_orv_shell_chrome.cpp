#include <orv_base_layout_widget.h>
#include <orv_events.h>
#include <orv_settings.h>
#include <orv_test_support.h>
#include <orv_test_widgets.h>

#include <QtTest>

#include <random>

using namespace OrvWidgets;

namespace {

using Page = OrvTest::EditPage;

bool showing(OrvBaseLayoutWidget& shell, const QString& title)
{
    const QWidget* box = shell.notificationBox();
    return box && box->isVisible()
        && box->findChild<QLabel*>("lblText")->text().contains(QStringLiteral(">%1</span>").arg(title));
}

void click(OrvBaseLayoutWidget& shell, const char* button)
{
    shell.notificationBox()->findChild<QToolButton*>(button)->click();
}

// The links the shell posts to the application; a deleted filter is dropped by Qt.
struct LinkRecorder : QObject
{
    LinkRecorder() { qApp->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == OrvLinkEvent::eventTypeId())
            links << static_cast<OrvLinkEvent*>(event)->url().toString();
        return false;
    }
    QStringList links;
};

} // namespace

class TestOrvShellChrome : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void acknowledgementLinksAndLooks()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        LinkRecorder recorder;
        QStringList firstCallback;
        QStringList laterCallback;
        shell.showMessage("First", "<a href='orv://ParticipantInfo/19'>x</a>", OrvNotificationBox::Success,
                          [&](const QString& l) { firstCallback << l; }, false, "42");
        Q_EMIT shell.notificationBox()->signalLinkClicked("orv://ParticipantInfo/19");
        click(shell, "tbAck");
        shell.showMessage("Second", "y", OrvNotificationBox::Info, [&](const QString& l) { laterCallback << l; }, true);
        Q_EMIT shell.notificationBox()->signalLinkClicked("orv://Other/1");
        QCoreApplication::sendPostedEvents(qApp);
        QCOMPARE(recorder.links, QStringList({"orv://participantinfo/19", "orv://notificationack/42",
                                              "orv://other/1"}));
        // The first message's callback and flag stay in force for the box's life.
        QCOMPARE(firstCallback, QStringList({"orv://ParticipantInfo/19", "orv://Other/1"}));
        QVERIFY(laterCallback.isEmpty());
        QVERIFY(shell.notificationBox()->isVisible()); // first flag was false
        click(shell, "tbAck"); // anonymous
        QCoreApplication::sendPostedEvents(qApp);
        QCOMPARE(recorder.links.last(), QStringLiteral("orv://notificationack/"));

        QSet<QString> styles; // each type has its own look
        for (int type = 0; type < 4; ++type) {
            shell.showMessage("T", "x", OrvNotificationBox::MessageType(type));
            styles << shell.notificationBox()->styleSheet();
        }
        QCOMPARE(styles.size(), 4);
        QCOMPARE(shell.notificationBox()->accessibleName(), QStringLiteral("T"));
        QCOMPARE(shell.notificationBox()->accessibleDescription(), QStringLiteral("x"));
        delete shell.notificationBox(); // deleted from outside: made again
        QVERIFY(!shell.notificationBox());
        shell.showMessage("B", "b", OrvNotificationBox::Info);
        QVERIFY(showing(shell, "B"));
    }

    // Random shows, replacements by identifier, removals and closes checked against a simple model.
    void randomizedQueueAgainstModel()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        std::mt19937 random(20261121);
        struct M { QString title; QString id; };
        QVector<M> model; // the last is shown; closing it brings back the one before
        const auto drop = [&](const QString& id) {
            if (!id.isEmpty())
                model.erase(std::remove_if(model.begin(), model.end(), [&](const M& m) { return m.id == id; }), model.end());
        };
        for (int step = 0; step < 10000; ++step) {
            const int action = random() % 10;
            const QString id = random() % 3 == 0 ? QString() : QString::number(random() % 40);
            if (action < 6) {
                const QString title = QStringLiteral("m%1").arg(step);
                // Every type queues alike; a message replaces those with its identifier.
                shell.showMessage(title, "", OrvNotificationBox::MessageType(step % 4), {}, false, id);
                drop(id);
                model.append({title, id});
            } else if (action < 8) {
                shell.removeQueuedMessage(id); // an empty identifier removes nothing
                drop(id);
            } else if (!model.isEmpty()) {
                click(shell, "tbClose");
                model.removeLast();
            }
            QVERIFY2(model.isEmpty() ? !shell.notificationBox() || !shell.notificationBox()->isVisible()
                                     : showing(shell, model.last().title),
                     qPrintable(QStringLiteral("step %1").arg(step)));
            const bool exists = std::any_of(model.cbegin(), model.cend(), [&](const M& m) { return !id.isEmpty() && m.id == id; });
            QCOMPARE(shell.messageIdentifierExists(id), exists);
        }
    }

    void exerciseTexts()
    {
        QTemporaryDir dir;
        OrvUtils::ProjectSettings::getInstance()->setFileName(dir.filePath("project.ini"));
        OrvBaseLayoutWidget shell(nullptr, true);
        auto label = [&](const char* name) { return shell.findChild<QLabel*>(name); };
        QVERIFY(label("lbExercisePhase")->isHidden()); // phases are off unless enabled
        QCOMPARE(label("lbExercisePhase")->text(), QStringLiteral("no phase"));
        QCOMPARE(label("lbExerciseStatus")->text(), QStringLiteral("no status"));

        OrvUtils::ProjectSettings::getInstance()->setValue("exm", "enableEditPhases", true);
        shell.setSessionInfo(3, IDL::Exercise, 12, "WS-7");
        ExerciseData data;
        data.exName = "Blue Harbour";
        data.exDescription = "Harbour defence";
        data.phDescription = "Landing";
        data.exStateCol = QColor(Qt::darkGreen);
        data.partitionType = "Exercise";
        shell.setExerciseData(data);
        QCOMPARE(label("lbExerciseName")->text(), QStringLiteral("Blue Harbour"));
        QCOMPARE(label("lbExerciseName")->toolTip(),
                 QStringLiteral("Exercise name\nPartition Id: 12\nDescription: Harbour defence"));
        QVERIFY(!label("lbExercisePhase")->isHidden());
        QCOMPARE(label("lbExercisePhase")->toolTip(), QStringLiteral("Exercise phase\nDescription: Landing"));
        QCOMPARE(label("lbExerciseStatus")->palette().color(QPalette::WindowText), QColor(Qt::darkGreen));
        QCOMPARE(label("lbPartitionType")->text(), QStringLiteral("Exercise"));

        shell.setOperatorName("", false);
        QCOMPARE(shell.findChild<QWidget*>("profileButton")->toolTip(), QStringLiteral("Operator Name: <b>Admin</b>"));
        shell.setCustomText("Training");
        QVERIFY(!label("lbCustomTextBullet")->isHidden());
        shell.setCustomText("");
        QVERIFY(label("lbCustomText")->isHidden());

        shell.setExerciseTime(0);
        QTest::qWait(250);
        QCOMPARE(label("lbExerciseTime")->text(), QStringLiteral(" # "));
        shell.setExerciseTime(QDateTime(QDate(2026, 11, 14), QTime(15, 30, 7), Qt::UTC).toMSecsSinceEpoch());
        QTRY_COMPARE(label("lbExerciseTime")->text(), QStringLiteral("14153007Z NOV 26"));
        QVERIFY(label("lbCurrentTime")->text().endsWith(QDateTime::currentDateTimeUtc().toString("yy")));
    }

    void closeAndLogout()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        auto* page = new Page;
        shell.addWidget(page, "G", "I", eDialogTab, true, true);
        page->slotChangesMade();
        QSignalSpy closed(&shell, &OrvBaseLayoutWidget::signalClose);
        QSignalSpy logout(&shell, &OrvBaseLayoutWidget::signalLogout);

        OrvTest::DialogAnswerer answerer;
        answerer.click("Cancel").click("Discard All");
        shell.close(); // closeEvent asks
        QCOMPARE(closed.count(), 0);
        QVERIFY(shell.isVisible());
        QVERIFY(shell.slotClose());
        QCOMPARE(closed.count(), 1);
        QVERIFY(!shell.isVisible());
        QCOMPARE(answerer.answered(), 2);

        // Logging out asks as closing does.
        shell.show();
        answerer.click("Cancel").click("Discard All");
        shell.slotLogout();
        QCOMPARE(logout.count(), 0);
        shell.slotLogout();
        QCOMPARE(logout.count(), 1);
        QCOMPARE(answerer.answered(), 4);

        // With a receiver the application decides.
        connect(&shell, &OrvBaseLayoutWidget::signalNotifyUnsavedChanges, this, [](bool& ok) { ok = false; });
        QVERIFY(!shell.slotClose());
        QCOMPARE(closed.count(), 1);
    }

    void firstShowCollapseMenuAndAnimations()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.resize(1600, 1000);
        shell.show();
        QVERIFY(QTest::qWaitForWindowExposed(&shell));
        auto* master = shell.findChild<QSplitter*>("masterSplitter");
        auto* main = shell.findChild<QSplitter*>("mainSplitter");
        QVERIFY(main->width() > 1600 / 2); // the first show gives the main area the room
        QVERIFY(shell.getMenu()->width() >= 250);
        const QList<int> before = master->sizes();
        shell.collapseMenu(false);
        QVERIFY(!shell.isMenuCollapsed());
        QCOMPARE(master->sizes().last(), 0);
        shell.collapseMenu(true);
        QCOMPARE(master->sizes(), before);

        shell.addWidget(new Page, "G", "a", eDialogTab, true, true);
        QTest::qWait(50);
        const QList<int> shown = main->sizes();
        shell.onHideAnimated();
        QTRY_VERIFY(!shell.isWidgetsHidden()); // the dialog area is hidden at the end
        shell.onReShowAnimated();
        QVERIFY(shell.isWidgetsHidden());
        QTRY_COMPARE(main->sizes(), shown);
    }
};

QTEST_MAIN(TestOrvShellChrome)
#include "tst_orv_shell_chrome.moc"
