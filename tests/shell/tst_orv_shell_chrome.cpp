#include <dax_translation.h>
#include <orv_base_layout_widget.h>
#include <orv_dialog_helper.h>
#include <orv_dialog.h>
#include <orv_events.h>
#include <orv_settings.h>
#include <orv_test_support.h>
#include <orv_test_widgets.h>

#include <QtTest>

#include <random>

using namespace OrvWidgets;

namespace {

using Page = OrvTest::EditPage;

QString shownText(OrvBaseLayoutWidget& shell)
{
    auto* label = shell.notificationBox() ? shell.notificationBox()->findChild<QLabel*>("lblText") : nullptr;
    return label && shell.notificationBox()->isVisible() ? label->text() : QString();
}

bool showing(OrvBaseLayoutWidget& shell, const QString& title)
{
    return shownText(shell).contains(QStringLiteral(">%1</span>").arg(title));
}

void click(OrvBaseLayoutWidget& shell, const char* button)
{
    shell.notificationBox()->findChild<QToolButton*>(button)->click();
}

class LinkRecorder : public QObject
{
public:
    LinkRecorder() { qApp->installEventFilter(this); }
    ~LinkRecorder() override { qApp->removeEventFilter(this); }
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
    void acknowledgementAndLinks()
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
    }

    void styleAndTexts()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        shell.showMessage("T", "x", OrvNotificationBox::Warning);
        OrvNotificationBox* box = shell.notificationBox();
        QCOMPARE(box->size(), QSize(670, 130));
        QVERIFY(box->styleSheet().startsWith(
            "#NotiBox { background: qlineargradient(x1:0, y1:0, x2:1, y2:1, stop: 0 rgb(253, 151, 4), stop: 1 "
            "rgb(253, 202, 0)); border: 1px solid rgb(253, 202, 0); border-radius: 8px; margin: 14px }"));
        QVERIFY(box->styleSheet().contains("QToolButton#tbClose { border-image: url(:/close_dark.svg) 0 0 0 0 "
                                           "stretch stretch; border-width: 0px; background-color: transparent; }"));
        QCOMPARE(shownText(shell), QStringLiteral("<p><span style='font-size:14pt; font-weight:600; "
                                                  "color:#2c3642;'>T</span></p><p><span style='font-size:14pt; "
                                                  "color:#2c3642;'>x</span></p>"));
        QCOMPARE(box->accessibleName(), QStringLiteral("T"));
        QCOMPARE(box->accessibleDescription(), QStringLiteral("x"));
    }

    void boxDestroyedFromOutsideIsRecreated()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        shell.showMessage("A", "a", OrvNotificationBox::Info);
        delete shell.notificationBox();
        QVERIFY(!shell.notificationBox());
        shell.showMessage("B", "b", OrvNotificationBox::Info);
        QVERIFY(shell.notificationBox());
        QVERIFY(showing(shell, "B"));
    }

    // Random shows, replacements by identifier, removals and closes checked against a simple model.
    void randomizedQueueAgainstModel()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        std::mt19937 random(20261121);
        struct M { QString title; QString id; };
        QVector<M> queue;
        std::optional<M> current;
        const auto drop = [&](const QString& id) {
            const auto same = [&](const M& m) { return m.id == id; };
            queue.erase(std::remove_if(queue.begin(), queue.end(), same), queue.end());
        };
        const auto next = [&] { // the last queued message comes back first
            current.reset();
            if (!queue.isEmpty())
                current = queue.takeLast();
        };
        for (int step = 0; step < 10000; ++step) {
            const int action = random() % 10;
            const QString id = random() % 3 == 0 ? QString() : QString::number(random() % 40);
            if (action < 6) {
                const QString title = QStringLiteral("m%1").arg(step);
                // Every type queues alike.
                shell.showMessage(title, "", OrvNotificationBox::MessageType(step % 4), {}, false, id);
                if (!id.isEmpty())
                    drop(id);
                if (current && (id.isEmpty() || current->id != id))
                    queue.append(*current);
                current = M{title, id};
            } else if (action < 8) {
                shell.removeQueuedMessage(id); // an empty identifier removes nothing
                if (!id.isEmpty()) {
                    drop(id);
                    if (current && current->id == id)
                        next();
                }
            } else if (current) {
                click(shell, "tbClose");
                next();
            }
            QVERIFY2(current ? showing(shell, current->title) : !shell.notificationBox() || !shell.notificationBox()->isVisible(),
                     qPrintable(QStringLiteral("step %1").arg(step)));
            const bool exists = !id.isEmpty() && ((current && current->id == id)
                                                  || std::any_of(queue.cbegin(), queue.cend(),
                                                                 [&](const M& m) { return m.id == id; }));
            QCOMPARE(shell.messageIdentifierExists(id), exists);
        }
    }

    void exerciseTexts()
    {
        QTemporaryDir dir;
        OrvUtils::ProjectSettings::getInstance()->setFileName(dir.filePath("project.ini"));
        OrvBaseLayoutWidget shell(nullptr, true);
        auto label = [&](const char* name) { return shell.findChild<QLabel*>(name); };
        QCOMPARE(label("lbExerciseName")->text(), QStringLiteral("no exercise"));
        QCOMPARE(label("lbExercisePhase")->text(), QStringLiteral("no phase"));
        QCOMPARE(label("lbExerciseStatus")->text(), QStringLiteral("no status"));
        QVERIFY(label("lbExercisePhase")->isHidden()); // phases are off unless enabled

        OrvUtils::ProjectSettings::getInstance()->setValue("exm", "enableEditPhases", true);
        shell.setSessionInfo(3, IDL::Exercise, 12, "WS-7");
        ExerciseData data;
        data.exName = "Blue Harbour";
        data.exDescription = "Harbour defence";
        data.phName = "Phase 2";
        data.phDescription = "Landing";
        data.exStateString = "started";
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

        shell.slotLogout(); // never asks
        QCOMPARE(logout.count(), 1);

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
        QCOMPARE(master->sizes().size(), 3);
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

    void liveLanguageSwitch()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        auto* page = new Page;
        shell.addWidget(page, "G", "I", eDialogTab, true, true);
        auto* cancel = page->getHelper()->findChild<QPushButton*>("pbClose");
        auto* planning = shell.findChild<QPushButton*>("pbPlanning");
        auto* exercise = shell.findChild<QLabel*>("lbExerciseName");
        QCOMPARE(planning->text(), QStringLiteral("Planning"));
        QCOMPARE(cancel->text(), QStringLiteral("Cancel"));
        Dax::setTranslationLocale("de_DE", "orv-tests");
        QCoreApplication::processEvents();
        QCOMPARE(planning->text(), QStringLiteral("Planung"));
        QCOMPARE(exercise->text(), QStringLiteral("keine Übung"));
        QCOMPARE(cancel->text(), QStringLiteral("Abbrechen"));
        Dax::setTranslationLocale("en_GB", "orv-tests");
        QCoreApplication::processEvents();
        QCOMPARE(planning->text(), QStringLiteral("Planning"));
        QCOMPARE(exercise->text(), QStringLiteral("no exercise"));
        QCOMPARE(cancel->text(), QStringLiteral("Cancel"));
    }

    void destroyedDuringSlideIn()
    {
        auto* shell = new OrvBaseLayoutWidget(nullptr, true);
        shell->show();
        shell->showMessage("A", "a", OrvNotificationBox::Error);
        QTest::qWait(100); // the slide-in runs for 700 ms
        delete shell;
        QTest::qWait(50);
    }
};

QTEST_MAIN(TestOrvShellChrome)
#include "tst_orv_shell_chrome.moc"
