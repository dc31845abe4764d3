#include <orv_dialog.h>
#include <orv_dialog_helper.h>
#include <orv_global_wait_dialog.h>
#include <orv_overlay_loading.h>
#include <orv_progress_dialog_helper.h>
#include <orv_test_support.h>
#include <orv_wait_dialog.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {
class Page : public OrvDialog
{
public:
    Page() : OrvDialog(nullptr, OkApplyCancel, true) {}
    void retranslate() override { translate(QStringLiteral("Page")); }
};

QString shownText(OrvProgressDialogHelper* helper)
{
    auto* label = helper->window() ? helper->window()->findChild<QLabel*>("lblMessage") : nullptr;
    return label ? label->text() : QString();
}
} // namespace

class TestOrvWaits : public QObject
{
    Q_OBJECT
    static OrvGlobalWaitDialog* global() { return OrvGlobalWaitDialog::getInstance(); }

private Q_SLOTS:
    void cleanup()
    {
        while (global()->waitingCount() > 0)
            global()->done();
        global()->rearm();
        QTRY_VERIFY(!global()->isShown());
    }

    void resultTexts_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("text");
        QTest::newRow("success") << int(OrvProgressDialogHelper::Success) << "Operation was successful";
        QTest::newRow("failure") << int(OrvProgressDialogHelper::Failure) << "Operation has failed!\nReason: 'x'";
        QTest::newRow("timeout") << int(OrvProgressDialogHelper::TimeOut)
                                 << "Operation has timed out and could not be processed! Please try again later";
        QTest::newRow("unknown") << 7 << "Unknown result (7)!";
        QTest::newRow("close: no message") << int(OrvProgressDialogHelper::Close) << "";
    }
    void resultTexts()
    {
        QFETCH(int, result);
        QFETCH(QString, text);
        OrvProgressDialogHelper helper(nullptr);
        helper.slotStopWaitForReplyWindow(OrvProgressDialogHelper::ReplyResult(result), "x"); // no window: nothing
        QVERIFY(!helper.isShown());
        helper.slotShowWaitForReplyWindow();
        QCOMPARE(shownText(&helper), QStringLiteral("Waiting for server reply..."));
        helper.setCustomText("Loading exercise");
        QCOMPARE(shownText(&helper), QStringLiteral("Loading exercise"));
        helper.slotStopWaitForReplyWindow(OrvProgressDialogHelper::ReplyResult(result), "x");
        if (text.isEmpty()) { // just ends
            QVERIFY(!helper.isShown());
            return;
        }
        QCOMPARE(shownText(&helper), text);
        QSignalSpy accepted(&helper, &OrvProgressDialogHelper::accepted);
        OrvTest::DialogAnswerer answerer;
        answerer.click("OK");
        QTRY_COMPARE(accepted.count(), 1);
        QVERIFY(!helper.isShown());
    }

    void parentDestroyedWhileBusy()
    {
        auto* parent = new QWidget;
        parent->show();
        OrvProgressDialogHelper helper(nullptr);
        helper.setParentWidget(parent);
        helper.slotShowWaitForReplyWindow();
        QVERIFY(helper.isShown());
        delete parent; // takes the busy window with it
        QVERIFY(!helper.isShown());
        helper.slotStopWaitForReplyWindow(OrvProgressDialogHelper::Success); // nothing left to stop
        QVERIFY(!helper.isShown());
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);
    }

    void nestedWaitsShowOnceAndHideLate()
    {
        global()->done(); // without a wait: nothing
        QCOMPARE(global()->waitingCount(), 0);
        global()->wait("first");
        QVERIFY(global()->isShown());
        QPointer<OrvFramelessDialog> window = global()->progressDialog()->window();
        global()->wait("second");
        QCOMPARE(global()->progressDialog()->window(), window.data()); // not re-created
        QCOMPARE(shownText(global()->progressDialog()), QStringLiteral("second"));
        global()->done();
        QVERIFY(global()->isShown());
        global()->done();
        QVERIFY(global()->isShown()); // hiding phase
        QTest::qWait(100);
        global()->wait("third"); // during the hiding phase: keeps the window
        QCOMPARE(global()->progressDialog()->window(), window.data());
        QTest::qWait(600);
        QVERIFY(global()->isShown());
        global()->done();
        QTRY_VERIFY(!global()->isShown());
    }

    void unarmAndRearm()
    {
        global()->unarm();
        global()->wait("hidden");
        QVERIFY(!global()->isShown());
        QCOMPARE(global()->waitingCount(), 1);
        global()->rearm();
        QVERIFY(global()->isShown());
        global()->unarm();
        QVERIFY(!global()->isShown()); // hidden at once
        global()->done();
    }

    void visibility()
    {
        global()->setVisible(false);
        global()->wait("not shown");
        QVERIFY(!global()->isShown());
        global()->setVisible(true); // a wait runs: takes effect
        QVERIFY(global()->isShown());
        global()->setVisible(false); // a wait runs: the window stays
        QVERIFY(global()->isShown());
        global()->done();
        QTRY_VERIFY(!global()->isShown());
        global()->setVisible(true);
    }

    void scopeObjects()
    {
        {
            OrvWaitDialog wait("scope");
            Waiter waiter("global waiter");
            QCOMPARE(global()->waitingCount(), 2);
        }
        QCOMPARE(global()->waitingCount(), 0);
    }

    void pageWait()
    {
        Page page;
        page.getHelper()->show();
        QVERIFY(page.isClosable());
        QVERIFY(!page.hasUnsavedChanges());
        QPointer<OrvOverlayLoading> overlay;
        {
            Waiter waiter(&page, QString());
            overlay = waiter.overlay();
            QVERIFY(!page.isClosable());
            QVERIFY(page.hasUnsavedChanges());
            QVERIFY(overlay && overlay->isVisible());
            QCOMPARE(overlay->text(), QStringLiteral("Waiting for server reply..."));
        }
        QVERIFY(page.isClosable());
        QVERIFY(!page.hasUnsavedChanges());
        QTRY_VERIFY(!overlay);
    }

    void pageDestroyedWhileWaiting()
    {
        auto* page = new Page;
        page->getHelper()->show();
        auto* waiter = new Waiter(page, "busy");
        delete page;
        delete waiter; // no crash, nothing left behind
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);
    }

    void loadingPanelCancelsOnce()
    {
        OrvOverlayLoading panel(nullptr);
        auto* cancel = panel.findChild<QPushButton*>("pbCancel");
        QVERIFY(cancel->isHidden());
        QCOMPARE(panel.text(), QStringLiteral("Loading ..."));
        panel.setCancelButtonVisible(true);
        QSignalSpy spy(&panel, &OrvOverlayLoading::cancel);
        cancel->click();
        cancel->click();
        QCOMPARE(spy.count(), 1);
        QVERIFY(!cancel->isEnabled());
        panel.setCancelButtonEnabled(true);
        QVERIFY(cancel->isEnabled());
        QCOMPARE(cancel->shortcut(), QKeySequence("Shift+C"));
    }
};

QTEST_MAIN(TestOrvWaits)
#include "tst_orv_waits.moc"
