#include <dax_translation.h>
#include <orv_dialog_button_box.h>
#include <orv_session_data.h>
#include <orv_test_support.h>

#include <orv_test_widgets.h>

#include <QtTest>

using namespace OrvWidgets;

using OrvTest::visibleButtons;

class TestOrvDialogButtonBox : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        // The icons come with the resources; their absence is not this test's concern.
        QLoggingCategory::setFilterRules("qt.svg.warning=false");
    }

    // Each value names its own button; the page's decisions sit on the right, the tools on the left.
    void everyValueHasItsOwnButton()
    {
        OrvDialogButtonBox box;
        QSet<QPushButton*> seen;
        for (int value = ReadOnly; value <= _debug_; ++value) {
            QPushButton* b = box.getButton(DialogButton(value));
            QVERIFY(b);
            seen.insert(b);
            QCOMPARE(b->shortcut(), value == Close ? QKeySequence("Ctrl+W") : QKeySequence());
        }
        QCOMPARE(seen.size(), 21);
        box._setVisibilityForAll(true);
        QCOMPARE(visibleButtons(box.findChild<QWidget*>("leftSide")),
                 QStringList({"_pbChanges", "pbCenterMap", "pbExport", "pbHelp", "pbImport", "pbLibrary", "pbPrint",
                              "pbZoomMapTo"}));
    }

    void visibility_data()
    {
        QTest::addColumn<bool>("tablet");
        QTest::newRow("desktop") << false;
        QTest::newRow("tablet") << true; // never shows Print, decided when the box is made
    }
    // A new box shows OK and Close. An unknown value names no button: changing it does nothing,
    // not even the STOP message.
    void visibility()
    {
        QFETCH(bool, tablet);
        OrvSessionData::OrvSessionData::getInstance()->setTablet(tablet);
        OrvDialogButtonBox box;
        OrvSessionData::OrvSessionData::getInstance()->setTablet(false);
        const auto unknown = DialogButton(99);
        OrvTest::DialogAnswerer answerer;
        box.setButtonVisible(unknown, true);
        box.setButtonEnabled(unknown, true);
        box.setText(unknown, "x");
        QVERIFY(!box.isButtonVisible(unknown));
        QVERIFY(!box.isButtonEnabled(unknown));
        QCOMPARE(answerer.answered(), 0);
        QCOMPARE(visibleButtons(&box), QStringList({"pbClose", "pbOk"}));
        QVERIFY(box.findChild<QFrame*>("line")->isVisibleTo(&box));
        QVERIFY(!box.isButtonVisible(Ok)); // the box itself is not shown yet
        box.show();
        QVERIFY(box.isButtonVisible(Ok));
        box.setButtonVisible(Print, true);
        QCOMPARE(box.getButton(Print)->isVisibleTo(&box), !tablet);
        box._setVisibilityForAll(true);
        QCOMPARE(visibleButtons(&box).size(), tablet ? 20 : 21);
    }

    void standardButtonsStop_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("questions");
        QTest::newRow("ok") << int(Ok) << 1;
        QTest::newRow("apply") << int(Apply) << 1;
        QTest::newRow("close") << int(Close) << 1;
        QTest::newRow("add") << int(Add) << 0;
    }
    void standardButtonsStop()
    {
        QFETCH(int, value);
        QFETCH(int, questions);
        OrvDialogButtonBox box;
        box.getButton(DialogButton(value))->setEnabled(false);
        OrvTest::DialogAnswerer answerer;
        if (questions)
            answerer.click("Ok");
        box.setButtonEnabled(DialogButton(value), true);
        QCOMPARE(answerer.answered(), questions);
        if (questions) {
            QVERIFY(answerer.texts().first().startsWith("<b>>>> STOP <<<</b><br><br>Hier stimmt etwas nicht."));
            QCOMPARE(answerer.buttons().first(), QStringList("Ok"));
        }
        QVERIFY(box.isButtonEnabled(DialogButton(value)));
    }

    void removeQuestion_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("emitted");
        QTest::newRow("yes") << "Yes" << 1;
        QTest::newRow("no") << "No" << 0;
        QTest::newRow("escape") << "" << 0;
    }
    void removeQuestion()
    {
        QFETCH(QString, answer);
        QFETCH(int, emitted);
        OrvDialogButtonBox box;
        QSignalSpy spy(&box, &OrvDialogButtonBox::signalRemoveClicked);
        OrvTest::DialogAnswerer answerer;
        answer.isEmpty() ? answerer.escape() : answerer.click(answer);
        QVERIFY(QMetaObject::invokeMethod(&box, "slotRemoveClicked"));
        QCOMPARE(answerer.answered(), 1);
        QCOMPARE(answerer.buttons().first(), QStringList({"Yes", "No"}));
        QVERIFY(answerer.texts().first().contains("Are you sure you want to delete the selected entry(ies)?"));
        QCOMPARE(spy.count(), emitted);
    }

    void libraryMenu()
    {
        OrvDialogButtonBox box;
        const auto actions = box.getButton(Library)->menu()->actions();
        QCOMPARE(actions.size(), 2);
        QCOMPARE(actions.at(0)->text() + actions.at(1)->text(), QString("LoadSave"));
        QSignalSpy load(&box, &OrvDialogButtonBox::signalLibraryLoadClicked);
        QSignalSpy save(&box, &OrvDialogButtonBox::signalLibrarySaveClicked);
        actions.at(1)->trigger();
        QCOMPARE(load.count() * 10 + save.count(), 1);
    }

    // A live switch translates every button and the library menu but keeps texts the owner set.
    void languageSwitchKeepsOwnerTexts()
    {
        OrvDialogButtonBox box;
        box.setText(Close, "Cancel");
        box.getButton(Add)->setText("stale");
        QStringList english;
        for (int value = ReadOnly; value <= _debug_; ++value)
            english << box.getButton(DialogButton(value))->text();
        const auto restore = qScopeGuard([] {
            Dax::setTranslationLocale("en_GB", "orv-tests");
            QCoreApplication::processEvents();
        });
        Dax::setTranslationLocale("de_DE", "orv-tests");
        QCoreApplication::processEvents();
        for (int value = ReadOnly; value <= _debug_; ++value) {
            const QString text = box.getButton(DialogButton(value))->text();
            const bool same = value == Ok || value == Help || value == _debug_ || value == Close;
            QVERIFY2(same == (text == english.at(value)), qPrintable(text));
        }
        QCOMPARE(box.getButton(Close)->text(), QString("Cancel"));
        QCOMPARE(box.getButton(Close)->shortcut(), QKeySequence("Ctrl+W"));
        QCOMPARE(box.getButton(Add)->text(), QString("Hinzufügen"));
        const auto actions = box.getButton(Library)->menu()->actions();
        QCOMPARE(actions.at(0)->text() + actions.at(1)->text(), QString("LadenSpeichern"));
    }
};

QTEST_MAIN(TestOrvDialogButtonBox)
#include "tst_orv_dialog_button_box.moc"
