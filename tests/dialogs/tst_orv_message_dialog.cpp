#include <dax_translation.h>
#include <orv_dialog_helper.h>
#include <orv_global_wait_dialog.h>
#include <orv_info_dialog.h>
#include <orv_message_dialog.h>
#include <orv_message_dialog_new.h>
#include <orv_overlay_loading.h>
#include <orv_progress_dialog_helper.h>
#include <orv_test_support.h>
#include <orv_test_widgets.h>
#include <orv_wait_dialog.h>

#include <QtTest>

namespace OrvWidgets {
// Reaches the private screen lookup, which has no public entry point.
class OrvFramelessDialogTest
{
public:
    static QRect screenRectFromPoint(const QPoint& p) { return OrvFramelessDialog::screenRectFromPoint(p); }
};
} // namespace OrvWidgets

using namespace OrvWidgets;
using B = OrvMessageDialog::Button;
using Helper = OrvProgressDialogHelper;

namespace {
const auto kAll = OrvMessageDialog::Buttons(B::Cancel) | B::Discard | B::Apply | B::No | B::Yes | B::Ok;

B ask(OrvMessageDialog::Buttons buttons, OrvFramelessDialog::Behaviour behaviour = OrvFramelessDialog::Modal,
      QWidget* parent = nullptr)
{
    return OrvMessageDialog::showMessage(parent, "t", "", behaviour, buttons);
}

QString shownText(Helper* helper)
{
    auto* label = helper->window() ? helper->window()->findChild<QLabel*>("lblMessage") : nullptr;
    return label ? label->text() : QString();
}

OrvGlobalWaitDialog* global() { return OrvGlobalWaitDialog::getInstance(); }
} // namespace

class TestOrvMessageDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup()
    {
        while (global()->waitingCount() > 0)
            global()->done();
        global()->rearm();
        QTRY_VERIFY(!global()->isShown());
    }

    // Every button answers the blocking question with its value and the
    // non-blocking one with its signal; neither leaves a dialog behind. The order is fixed.
    void answers_data()
    {
        QTest::addColumn<QString>("click");
        QTest::addColumn<int>("expected");
        QTest::addColumn<QByteArray>("signal");
        QTest::newRow("ok") << "Ok" << int(B::Ok) << QByteArray(SIGNAL(ok()));
        QTest::newRow("yes") << "Yes" << int(B::Yes) << QByteArray(SIGNAL(yes()));
        QTest::newRow("no") << "No" << int(B::No) << QByteArray(SIGNAL(no()));
        QTest::newRow("apply") << "Apply" << int(B::Apply) << QByteArray(SIGNAL(apply()));
        QTest::newRow("discard") << "Discard" << int(B::Discard) << QByteArray(SIGNAL(discard()));
        QTest::newRow("cancel") << "Cancel" << int(B::Cancel) << QByteArray(SIGNAL(cancel()));
    }
    void answers()
    {
        QFETCH(QString, click);
        QFETCH(QByteArray, signal);
        OrvTest::DialogAnswerer answerer;
        answerer.click(click).click(click);
        QTEST(int(ask(kAll)), "expected");
        QCOMPARE(answerer.buttons().first(), QStringList({"Ok", "Yes", "No", "Apply", "Discard", "Cancel"}));
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);

        OrvMessageDialogNew question(nullptr, "text", "title", OrvFramelessDialog::Modal, kAll, {}, true);
        QSignalSpy spy(&question, signal.constData());
        QTRY_COMPARE(spy.count(), 1);
        QTRY_VERIFY(!question.dialog()); // deleted on close
    }

    void keysReturnCancel_data()
    {
        QTest::addColumn<int>("behaviour");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("key");
        QTest::newRow("modal, no buttons") << int(OrvFramelessDialog::Modal) << 0 << int(Qt::Key_Escape);
        QTest::newRow("popup, ok") << int(OrvFramelessDialog::Popup) << int(B::Ok) << int(Qt::Key_Escape);
        QTest::newRow("enter: Cancel is the default") << int(OrvFramelessDialog::Modal) << int(kAll)
                                                      << int(Qt::Key_Return);
    }
    // Escape and Return answer Cancel, whatever the buttons.
    void keysReturnCancel()
    {
        QFETCH(int, behaviour);
        QFETCH(int, buttons);
        QFETCH(int, key);
        OrvTest::DialogAnswerer answerer;
        answerer.inspect([key](QWidget* dialog) {
            QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, Qt::Key(key));
        });
        QCOMPARE(ask(OrvMessageDialog::Buttons(buttons), OrvFramelessDialog::Behaviour(behaviour)), B::Cancel);
    }

    void reentranceWarnsAndStillWorks()
    {
        OrvTest::DialogAnswerer outer;
        B inner = B::UNKNOWN;
        outer.inspect([&](QWidget* dialog) {
            OrvTest::DialogAnswerer nested;
            nested.click("No");
            QTest::ignoreMessage(QtDebugMsg, "OrvMessageDialog: showMessage called while showMessage is in its Event "
                                             "Loop - do not open more than one Dialog at once !!");
            inner = ask(OrvMessageDialog::Buttons(B::Yes) | B::No);
            dialog->findChild<QPushButton*>("pbOk")->click();
        });
        QCOMPARE(OrvMessageDialog::showMessage(nullptr, "outer"), B::Ok);
        QCOMPARE(inner, B::No);
        OrvTest::DialogAnswerer again; // the flag is cleared again: no warning now
        again.click("Ok");
        QCOMPARE(OrvMessageDialog::showMessage(nullptr, "again"), B::Ok);
    }

    // A question whose parent dies answers Cancel; a busy window goes with its parent.
    void parentDestroyedWhileOpen()
    {
        auto* parent = new QWidget;
        parent->show();
        OrvTest::DialogAnswerer answerer;
        answerer.inspect([parent](QWidget*) { delete parent; });
        QCOMPARE(ask(OrvMessageDialog::Buttons(B::Ok) | B::Yes, OrvFramelessDialog::Modal, parent), B::Cancel);
        QTRY_VERIFY(!OrvTest::visibleFramelessDialog());

        parent = new QWidget;
        parent->show();
        Helper helper(nullptr);
        helper.setParentWidget(parent);
        helper.slotShowWaitForReplyWindow();
        QVERIFY(helper.isShown());
        delete parent;
        QVERIFY(!helper.isShown());
        helper.slotStopWaitForReplyWindow(Helper::Success); // nothing left to stop
        QVERIFY(!helper.isShown());
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);
    }

    // The question follows a live language switch, there and back.
    void applyDiscardCancelQuestion()
    {
        OrvTest::DialogAnswerer answerer;
        Dax::setTranslationLocale("de_DE", "orv-tests");
        answerer.click("Verwerfen");
        QCOMPARE(OrvMessageDialog::askApplyDiscardCancel(nullptr), B::Discard);
        QCOMPARE(answerer.buttons().first(), QStringList({"Übernehmen", "Verwerfen", "Abbrechen"}));
        QVERIFY(answerer.texts().first().startsWith("<b>Es gibt nicht übernommene Änderungen."));
        Dax::setTranslationLocale("en_GB", "orv-tests");
        answerer.click("Discard");
        QCOMPARE(OrvMessageDialog::askApplyDiscardCancel(nullptr), B::Discard);
        QCOMPARE(answerer.texts().last(),
                 QStringLiteral("<b>Unapplied changes made. Apply the changes?</b><br><br><br>Apply - apply changes "
                                "and close.<br>Discard - discard changes and close.<br>Cancel - do not close."));
        QCOMPARE(answerer.buttons().last(), QStringList({"Apply", "Discard", "Cancel"}));
    }

    void infoDialogShowsVersion()
    {
        QTest::ignoreMessage(QtWarningMsg, "OrvInfoDialog: project logo missing or is not an valid image ");
        OrvInfoDialog dialog(nullptr);
        const QString version = dialog.findChild<QLabel*>("lblVersion")->text();
        QVERIFY2(QRegularExpression("^1\\.2-(.+) \\(rev: 0\\)$").match(version).hasMatch(), qPrintable(version));
        QVERIFY(QDate::fromString(dialog.findChild<QLabel*>("lblDate")->text(), "dd.MM.yyyy").isValid());
        QVERIFY(dialog.findChild<QLabel*>("lblProjectLogo")->pixmap().isNull());
    }

    // A modal dialog stays on top, centred on the primary screen without a parent;
    // a popup is centred over its parent's window.
    void framelessPlacementAndFlags()
    {
        OrvFramelessDialog alone(nullptr, OrvFramelessDialog::Modal);
        QVERIFY(alone.isModal() && alone.windowType() == Qt::Dialog);
        QVERIFY(alone.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        alone.resize(300, 200);
        alone.show();
        QTRY_COMPARE(alone.geometry().center(), QGuiApplication::primaryScreen()->geometry().center());
        QCOMPARE(alone.size(), QSize(300, 200));
        alone.hide();

        QWidget window;
        window.setGeometry(100, 80, 800, 600);
        auto* inner = new QWidget(&window);
        inner->setGeometry(10, 10, 50, 50);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        OrvFramelessDialog popup(inner, OrvFramelessDialog::Popup);
        QVERIFY(!popup.isModal() && popup.windowType() == Qt::Popup);
        QVERIFY(!popup.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        popup.resize(200, 100);
        popup.show();
        QTRY_COMPARE(popup.geometry().center(), QRect(window.mapToGlobal(QPoint(0, 0)), window.size()).center());
    }

    void screenLookupToleratesFiftyPixels_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("found");
        QTest::newRow("inside") << QPoint(10, 10) << true;
        QTest::newRow("40 px left of the edge") << QPoint(-40, 10) << true;
        QTest::newRow("50 px above") << QPoint(10, -50) << true;
        QTest::newRow("51 px left") << QPoint(-51, 10) << false;
    }
    void screenLookupToleratesFiftyPixels()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, found);
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const QRect result = OrvFramelessDialogTest::screenRectFromPoint(screen.topLeft() + offset);
        QCOMPARE(result == screen, found);
        QCOMPARE(result.isEmpty(), !found);
    }

    void progressResultTexts_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("text");
        QTest::newRow("success") << int(Helper::Success) << "Operation was successful";
        QTest::newRow("failure") << int(Helper::Failure) << "Operation has failed!\nReason: 'x'";
        QTest::newRow("timeout") << int(Helper::TimeOut)
                                 << "Operation has timed out and could not be processed! Please try again later";
        QTest::newRow("unknown") << 7 << "Unknown result (7)!";
        QTest::newRow("close: no message") << int(Helper::Close) << "";
    }
    void progressResultTexts()
    {
        QFETCH(int, result);
        QFETCH(QString, text);
        Helper helper(nullptr);
        helper.slotStopWaitForReplyWindow(Helper::ReplyResult(result), "x"); // no window: nothing
        QVERIFY(!helper.isShown());
        helper.slotShowWaitForReplyWindow();
        QCOMPARE(shownText(&helper), QStringLiteral("Waiting for server reply..."));
        helper.setCustomText("Loading exercise");
        QCOMPARE(shownText(&helper), QStringLiteral("Loading exercise"));
        helper.slotStopWaitForReplyWindow(Helper::ReplyResult(result), "x");
        QCOMPARE(shownText(&helper), text);
        QSignalSpy accepted(&helper, &Helper::accepted);
        OrvTest::DialogAnswerer answerer;
        if (!text.isEmpty())
            answerer.click("OK");
        QTRY_COMPARE(accepted.count(), text.isEmpty() ? 0 : 1);
        QVERIFY(!helper.isShown());
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
        {
            OrvWaitDialog wait("scope");
            Waiter waiter("global waiter");
            QCOMPARE(global()->waitingCount(), 2);
        }
        QCOMPARE(global()->waitingCount(), 0);
    }

    void unarmRearmAndVisibility()
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
        global()->rearm();

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

    void pageWait()
    {
        auto* doomed = new OrvTest::EditPage;
        doomed->getHelper()->show();
        auto* busy = new Waiter(doomed, "busy");
        delete doomed;
        delete busy; // no crash, nothing left behind
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);

        OrvTest::EditPage page;
        page.getHelper()->show();
        QPointer<OrvOverlayLoading> overlay;
        {
            Waiter waiter(&page, QString());
            overlay = waiter.overlay();
            QVERIFY(!page.isClosable() && page.hasUnsavedChanges()); // the page cannot go while it waits
            QVERIFY(overlay && overlay->isVisible());
            QCOMPARE(overlay->text(), QStringLiteral("Waiting for server reply..."));
        }
        QVERIFY(page.isClosable() && !page.hasUnsavedChanges());
        QTRY_VERIFY(!overlay);
    }

    void loadingPanelCancelsOnce()
    {
        OrvOverlayLoading panel(nullptr);
        auto* cancel = panel.findChild<QPushButton*>("pbCancel");
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

QTEST_MAIN(TestOrvMessageDialog)
#include "tst_orv_message_dialog.moc"
