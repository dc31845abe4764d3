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

    void buttons_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("side");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("icon");
        const struct { int v; const char *n, *s, *t, *i; } rows[] = {
            {0, "pbReadOnly", "rightSide", "ReadOnly", "warning"},
            {1, "pbOk", "rightSide", "OK", "dialog-ok"},
            {2, "pbApply", "rightSide", "Apply", "dialog-ok"},
            {3, "pbClose", "rightSide", "Close", "dialog-close"},
            {4, "pbYes", "rightSide", "Yes", "dialog-ok"},
            {5, "pbNo", "rightSide", "No", "dialog-close"},
            {6, "pbRemove", "rightSide", "Remove", "media-vcr-nopause"},
            {7, "pbHide", "rightSide", "Hide", "show_building_configuration"},
            {8, "pbAdd", "rightSide", "Add", "document-new"},
            {9, "pbHelp", "leftSide", "", "help_index"},
            {10, "pbEdit", "rightSide", "Edit", "document-edit"},
            {11, "pbSave", "rightSide", "Save", "import_documents"},
            {12, "pbLoad", "rightSide", "Load", "export_documents"},
            {13, "pbShow", "rightSide", "Show", "filter_map_settings"},
            {14, "pbImport", "leftSide", "Import", "export_documents"},
            {15, "pbExport", "leftSide", "Export", "import_documents"},
            {16, "pbCenterMap", "leftSide", "Center Map", "center_to_object"},
            {17, "pbZoomMapTo", "leftSide", "Zoom to", "zoom_map_to"},
            {18, "pbLibrary", "leftSide", "Library", "library"},
            {19, "pbPrint", "leftSide", "Print", "freq_plan"},
            {20, "_pbChanges", "leftSide", "[debug]", ""},
        };
        for (const auto& r : rows)
            QTest::newRow(r.n) << r.v << r.n << r.s << r.t
                               << (*r.i ? QStringLiteral(":/style/%1.svg").arg(QLatin1String(r.i)) : QString());
    }
    void buttons()
    {
        QFETCH(int, value);
        QFETCH(QString, name);
        QFETCH(QString, side);
        QFETCH(QString, text);
        QFETCH(QString, icon);
        OrvDialogButtonBox box;
        QPushButton* b = box.getButton(DialogButton(value));
        QVERIFY(b);
        QCOMPARE(b->objectName(), name);
        QCOMPARE(b->parentWidget()->objectName(), side);
        QCOMPARE(b->text(), text);
        QCOMPARE(b->property("iconPath").toString(), icon);
        QCOMPARE(b->shortcut(), name == "pbClose" ? QKeySequence("Ctrl+W") : QKeySequence());
    }

    // An unknown value names no button: changing it does nothing, not even the STOP message.
    void newBoxShowsOkAndClose()
    {
        OrvDialogButtonBox box;
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
        box._setVisibilityForAll(true);
        QCOMPARE(visibleButtons(&box).size(), 21);
    }

    void tabletHidesPrint()
    {
        OrvSessionData::OrvSessionData::getInstance()->setTablet(true);
        OrvDialogButtonBox box;
        OrvSessionData::OrvSessionData::getInstance()->setTablet(false);
        box.setButtonVisible(Print, true);
        box._setVisibilityForAll(true);
        QVERIFY(!box.getButton(Print)->isVisibleTo(&box));
        QCOMPARE(visibleButtons(&box).size(), 20);
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

    void languageChangeKeepsOwnerTexts()
    {
        OrvDialogButtonBox box;
        box.setText(Close, "Cancel");
        box.getButton(Add)->setText("stale");
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&box, &event);
        QCOMPARE(box.getButton(Close)->text(), QString("Cancel"));
        QCOMPARE(box.getButton(Close)->shortcut(), QKeySequence("Ctrl+W"));
        QCOMPARE(box.getButton(Add)->text(), QString("Add"));
    }
};

QTEST_MAIN(TestOrvDialogButtonBox)
#include "tst_orv_dialog_button_box.moc"
