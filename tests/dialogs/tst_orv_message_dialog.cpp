#include <dax_translation.h>
#include <orv_info_dialog.h>
#include <orv_message_dialog.h>
#include <orv_message_dialog_new.h>
#include <orv_test_support.h>

#include <QtTest>

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
    void answers_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<QString>("click");
        QTest::addColumn<int>("expected");
        const int all = B::Ok | B::Yes | B::No | B::Cancel | B::Apply | B::Discard;
        QTest::newRow("ok") << int(B::Ok) << "Ok" << int(B::Ok);
        QTest::newRow("yes") << all << "Yes" << int(B::Yes);
        QTest::newRow("no") << all << "No" << int(B::No);
        QTest::newRow("apply") << all << "Apply" << int(B::Apply);
        QTest::newRow("discard") << all << "Discard" << int(B::Discard);
        QTest::newRow("cancel") << all << "Cancel" << int(B::Cancel);
    }
    void answers()
    {
        QFETCH(int, buttons);
        QFETCH(QString, click);
        QFETCH(int, expected);
        OrvTest::DialogAnswerer answerer;
        answerer.click(click);
        const B result = OrvMessageDialog::showMessage(nullptr, "text", "title", OrvFramelessDialog::Modal,
                                                       OrvMessageDialog::Buttons(buttons));
        QCOMPARE(int(result), expected);
        QCOMPARE(answerer.answered(), 1);
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

    void enterTriggersCancelWithOkAndCancel()
    {
        OrvTest::DialogAnswerer answerer;
        answerer.inspect([](QWidget* dialog) {
            QWidget* focus = dialog->focusWidget() ? dialog->focusWidget() : dialog;
            QTest::keyClick(focus, Qt::Key_Return);
        });
        QCOMPARE(OrvMessageDialog::showMessage(nullptr, "t", "", OrvFramelessDialog::Modal,
                                               OrvMessageDialog::Buttons(B::Ok) | B::Cancel),
                 B::Cancel);
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

    void escapeReturnsCancel_data()
    {
        QTest::addColumn<int>("behaviour");
        QTest::addColumn<int>("buttons");
        QTest::newRow("modal, no buttons") << int(OrvFramelessDialog::Modal) << 0;
        QTest::newRow("modal, yes/no") << int(OrvFramelessDialog::Modal) << int(B::Yes | B::No);
        QTest::newRow("popup, ok") << int(OrvFramelessDialog::Popup) << int(B::Ok);
    }
    void escapeReturnsCancel()
    {
        QFETCH(int, behaviour);
        QFETCH(int, buttons);
        OrvTest::DialogAnswerer answerer;
        answerer.escape();
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

    void noDialogIsLeftBehind()
    {
        OrvTest::DialogAnswerer answerer;
        answerer.click("Ok");
        OrvMessageDialog::showMessage(nullptr, "t");
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);
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

    void nonBlockingDialogSignals_data()
    {
        QTest::addColumn<QString>("click");
        QTest::addColumn<QByteArray>("signal");
        QTest::newRow("ok") << "Ok" << QByteArray(SIGNAL(ok()));
        QTest::newRow("yes") << "Yes" << QByteArray(SIGNAL(yes()));
        QTest::newRow("no") << "No" << QByteArray(SIGNAL(no()));
        QTest::newRow("apply") << "Apply" << QByteArray(SIGNAL(apply()));
        QTest::newRow("discard") << "Discard" << QByteArray(SIGNAL(discard()));
        QTest::newRow("cancel") << "Cancel" << QByteArray(SIGNAL(cancel()));
    }
    void nonBlockingDialogSignals()
    {
        QFETCH(QString, click);
        QFETCH(QByteArray, signal);
        const OrvMessageDialog::Buttons all = OrvMessageDialog::Buttons(B::Cancel) | B::Discard | B::Apply | B::No
                                              | B::Yes | B::Ok;
        OrvMessageDialogNew question(nullptr, "text", "title", OrvFramelessDialog::Modal, all, {}, true);
        QSignalSpy spy(&question, signal.constData());
        QVERIFY(question.dialog()->isVisible());
        QPushButton* target = nullptr;
        for (QPushButton* b : question.dialog()->findChildren<QPushButton*>())
            if (b->text() == click)
                target = b;
        QVERIFY(target);
        target->click();
        QCOMPARE(spy.count(), 1);
        QTRY_VERIFY(!question.dialog()); // deleted on close
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
};

QTEST_MAIN(TestOrvMessageDialog)
#include "tst_orv_message_dialog.moc"
