#include <dax_translation.h>
#include <orv_info_dialog.h>
#include <orv_message_dialog.h>
#include <orv_message_dialog_new.h>
#include <orv_test_support.h>

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

namespace {
QStringList buttonTexts(QWidget* dialog)
{
    QStringList texts;
    const auto buttons = dialog->findChildren<QPushButton*>();
    for (QPushButton* b : buttons)
        texts << b->text();
    return texts;
}

QPushButton* defaultButton(QWidget* dialog)
{
    QPushButton* found = nullptr;
    const auto buttons = dialog->findChildren<QPushButton*>();
    for (QPushButton* b : buttons)
        if (b->isDefault())
            found = found ? nullptr : b; // more than one default would be a fault
    return found;
}
} // namespace

class TestOrvMessageDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Every button answers the blocking question with its value and the
    // non-blocking one with its signal; neither leaves a dialog behind.
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
        QFETCH(int, expected);
        QFETCH(QByteArray, signal);
        const auto all = OrvMessageDialog::Buttons(B::Cancel) | B::Discard | B::Apply | B::No | B::Yes | B::Ok;
        OrvTest::DialogAnswerer answerer;
        answerer.click(click).click(click);
        QCOMPARE(int(OrvMessageDialog::showMessage(nullptr, "text", "title", OrvFramelessDialog::Modal, all)), expected);
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);

        OrvMessageDialogNew question(nullptr, "text", "title", OrvFramelessDialog::Modal, all, {}, true);
        QSignalSpy spy(&question, signal.constData());
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(answerer.answered(), 2);
        QTRY_VERIFY(!question.dialog()); // deleted on close
    }

    void buttonOrderAndDefault()
    {
        OrvTest::DialogAnswerer answerer;
        QStringList order;
        QString defaultText;
        answerer.inspect([&](QWidget* dialog) {
            order = buttonTexts(dialog);
            if (QPushButton* b = defaultButton(dialog))
                defaultText = b->text();
            dialog->close();
        });
        const OrvMessageDialog::Buttons all = OrvMessageDialog::Buttons(B::Cancel) | B::Discard | B::Apply | B::No
                                              | B::Yes | B::Ok;
        QCOMPARE(OrvMessageDialog::showMessage(nullptr, "t", "", OrvFramelessDialog::Modal, all), B::Cancel);
        QCOMPARE(order, QStringList({"Ok", "Yes", "No", "Apply", "Discard", "Cancel"}));
        QCOMPARE(defaultText, QStringLiteral("Cancel"));
    }

    void texts_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("with title") << "Title" << "Body" << "<b>Title</b><br><br>Body";
        QTest::newRow("without title") << "" << "Body only" << "Body only";
    }
    void texts()
    {
        QFETCH(QString, title);
        QFETCH(QString, text);
        QFETCH(QString, shown);
        OrvTest::DialogAnswerer answerer;
        answerer.click("Ok");
        OrvMessageDialog::showMessage(nullptr, text, title);
        QCOMPARE(answerer.texts(), QStringList{shown});
    }

    void customTextRelabelsOnlyThatButton()
    {
        OrvTest::DialogAnswerer answerer;
        answerer.click("Sure");
        const B result = OrvMessageDialog::showMessage(nullptr, "t", "", OrvFramelessDialog::Popup,
                                                       OrvMessageDialog::Buttons(B::Yes) | B::No,
                                                       {{B::Yes, QStringLiteral("Sure")}});
        QCOMPARE(result, B::Yes);
        QCOMPARE(answerer.buttons().first(), QStringList({"Sure", "No"}));
    }

    void keysReturnCancel_data()
    {
        QTest::addColumn<int>("behaviour");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("key");
        QTest::newRow("modal, no buttons") << int(OrvFramelessDialog::Modal) << 0 << int(Qt::Key_Escape);
        QTest::newRow("modal, yes/no") << int(OrvFramelessDialog::Modal) << int(B::Yes | B::No) << int(Qt::Key_Escape);
        QTest::newRow("popup, ok") << int(OrvFramelessDialog::Popup) << int(B::Ok) << int(Qt::Key_Escape);
        QTest::newRow("enter with ok/cancel") << int(OrvFramelessDialog::Modal) << int(B::Ok | B::Cancel)
                                              << int(Qt::Key_Return);
    }
    void keysReturnCancel()
    {
        QFETCH(int, behaviour);
        QFETCH(int, buttons);
        QFETCH(int, key);
        OrvTest::DialogAnswerer answerer;
        answerer.inspect([key](QWidget* dialog) {
            QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, Qt::Key(key));
        });
        QCOMPARE(OrvMessageDialog::showMessage(nullptr, "t", "", OrvFramelessDialog::Behaviour(behaviour),
                                               OrvMessageDialog::Buttons(buttons)),
                 B::Cancel);
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
            inner = OrvMessageDialog::showMessage(nullptr, "inner", "", OrvFramelessDialog::Modal,
                                                  OrvMessageDialog::Buttons(B::Yes) | B::No);
            dialog->findChild<QPushButton*>("pbOk")->click();
        });
        QCOMPARE(OrvMessageDialog::showMessage(nullptr, "outer"), B::Ok);
        QCOMPARE(inner, B::No);
        // The flag is cleared again: no warning now.
        OrvTest::DialogAnswerer again;
        again.click("Ok");
        QCOMPARE(OrvMessageDialog::showMessage(nullptr, "again"), B::Ok);
    }

    void parentDestroyedWhileOpenReturnsCancel()
    {
        auto* parent = new QWidget;
        parent->show();
        OrvTest::DialogAnswerer answerer;
        answerer.inspect([parent](QWidget*) { delete parent; });
        QCOMPARE(OrvMessageDialog::showMessage(parent, "t", "", OrvFramelessDialog::Modal,
                                               OrvMessageDialog::Buttons(B::Ok) | B::Yes),
                 B::Cancel);
        QTRY_VERIFY(!OrvTest::visibleFramelessDialog());
    }

    void applyDiscardCancelQuestion()
    {
        OrvTest::DialogAnswerer answerer;
        answerer.click("Discard");
        QCOMPARE(OrvMessageDialog::askApplyDiscardCancel(nullptr), B::Discard);
        QCOMPARE(answerer.texts().first(),
                 QStringLiteral("<b>Unapplied changes made. Apply the changes?</b><br><br><br>Apply - apply changes and "
                                "close.<br>Discard - discard changes and close.<br>Cancel - do not close."));
        QCOMPARE(answerer.buttons().first(), QStringList({"Apply", "Discard", "Cancel"}));
    }

    void liveLanguageSwitch()
    {
        const OrvMessageDialog::Buttons buttons = OrvMessageDialog::Buttons(B::Apply) | B::Discard | B::Cancel;
        Dax::setTranslationLocale("de_DE", "orv-tests");
        OrvTest::DialogAnswerer answerer;
        answerer.click("Verwerfen");
        QCOMPARE(OrvMessageDialog::askApplyDiscardCancel(nullptr), B::Discard);
        QCOMPARE(answerer.buttons().first(), QStringList({"Übernehmen", "Verwerfen", "Abbrechen"}));
        QVERIFY(answerer.texts().first().startsWith("<b>Es gibt nicht übernommene Änderungen."));
        Dax::setTranslationLocale("en_GB", "orv-tests");
        answerer.click("Cancel");
        QCOMPARE(OrvMessageDialog::showMessage(nullptr, "t", "", OrvFramelessDialog::Modal, buttons), B::Cancel);
        QCOMPARE(answerer.buttons().last(), QStringList({"Apply", "Discard", "Cancel"}));
    }

    void infoDialogShowsVersion()
    {
        QTest::ignoreMessage(QtWarningMsg, "OrvInfoDialog: project logo missing or is not an valid image ");
        OrvInfoDialog dialog(nullptr);
        const QRegularExpression format(QStringLiteral("^1\\.2-(.+) \\(rev: 0\\)$"));
        QVERIFY2(format.match(OrvInfoDialog::versionText()).hasMatch(), qPrintable(OrvInfoDialog::versionText()));
        auto* version = dialog.findChild<QLabel*>("lblVersion");
        QVERIFY(version);
        QCOMPARE(version->text(), OrvInfoDialog::versionText());
        QVERIFY(version->font().bold());
        auto* date = dialog.findChild<QLabel*>("lblDate");
        QVERIFY(QDate::fromString(date->text(), "dd.MM.yyyy").isValid());
        QVERIFY(dialog.findChild<QLabel*>("lblProjectLogo")->pixmap().isNull());
    }

    void framelessFlags_data()
    {
        QTest::addColumn<int>("behaviour");
        QTest::addColumn<bool>("modal");
        QTest::addColumn<int>("windowType");
        QTest::addColumn<bool>("staysOnTop");
        QTest::newRow("popup") << int(OrvFramelessDialog::Popup) << false << int(Qt::Popup) << false;
        QTest::newRow("modal") << int(OrvFramelessDialog::Modal) << true << int(Qt::Dialog) << true;
    }
    void framelessFlags()
    {
        QFETCH(int, behaviour);
        QFETCH(bool, modal);
        QFETCH(int, windowType);
        QFETCH(bool, staysOnTop);
        OrvFramelessDialog dialog(nullptr, OrvFramelessDialog::Behaviour(behaviour));
        QCOMPARE(dialog.isModal(), modal);
        QCOMPARE(int(dialog.windowType()), windowType);
        QCOMPARE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint), staysOnTop);
    }

    void centredOnPrimaryScreenWithoutParent()
    {
        OrvFramelessDialog dialog(nullptr, OrvFramelessDialog::Modal);
        dialog.resize(300, 200);
        dialog.show();
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QTRY_COMPARE(dialog.geometry().center(), screen.center());
        QCOMPARE(dialog.size(), QSize(300, 200));
    }

    void centredOverParentWindow()
    {
        QWidget window;
        window.setGeometry(100, 80, 800, 600);
        auto* inner = new QWidget(&window);
        inner->setGeometry(10, 10, 50, 50);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        OrvFramelessDialog dialog(inner, OrvFramelessDialog::Popup);
        dialog.resize(200, 100);
        dialog.show();
        const QRect reference(window.mapToGlobal(QPoint(0, 0)), window.size());
        QTRY_COMPARE(dialog.geometry().center(), reference.center());
    }

    void screenLookupToleratesFiftyPixels_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("found");
        QTest::newRow("inside") << QPoint(10, 10) << true;
        QTest::newRow("40 px left of the edge") << QPoint(-40, 10) << true;
        QTest::newRow("50 px above") << QPoint(10, -50) << true;
        QTest::newRow("51 px left") << QPoint(-51, 10) << false;
        QTest::newRow("far away") << QPoint(-5000, -5000) << false;
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
};

QTEST_MAIN(TestOrvMessageDialog)
#include "tst_orv_message_dialog.moc"
