#include <dax_translation.h>
#include <orv_background_widget.h>
#include <orv_base_layout_widget.h>
#include <orv_dialog_helper.h>
#include <orv_global_wait_dialog.h>
#include <orv_operator_menu.h>
#include <orv_profile_button.h>
#include <orv_test_widgets.h>
#include <splash.h>

#include <QtTest>

using namespace OrvWidgets;

class TestOrvOperatorMenu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void profileButton()
    {
        OrvProfileButton button(nullptr);
        QPixmap red(10, 10);
        red.fill(Qt::red);
        button.setPixmap(red);
        QCOMPARE(button.pixmap().size(), QSize(10, 10));
        button.setPixmap(QPixmap());
        QVERIFY(!button.pixmap().isNull()); // the placeholder from "icon:no_pic.svg"

        QSignalSpy clicked(&button, &OrvProfileButton::signalClicked);
        button.resize(48, 48);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        button.setMenuEnabled(false);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
    }

    void menuWiring_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QByteArray>("signal");
        QTest::newRow("logout") << "pbLogout" << QByteArray(SIGNAL(signalLogout()));
        QTest::newRow("exit") << "pbExit" << QByteArray(SIGNAL(signalExit()));
        QTest::newRow("swap") << "pbSwap" << QByteArray(SIGNAL(signalSwap()));
        QTest::newRow("settings") << "pbOperatorSettings" << QByteArray(SIGNAL(signalShowOperatorSettings()));
    }
    void menuWiring()
    {
        QFETCH(QString, button);
        QFETCH(QByteArray, signal);
        QPointer<OrvOperatorMenu> menu = new OrvOperatorMenu("Alice", "WS-7", true, 2, nullptr);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->show();
        QSignalSpy spy(menu.data(), signal.constData());
        menu->findChild<QPushButton*>(button)->click();
        QCOMPARE(spy.count(), 1);
        QTRY_VERIFY(!menu); // closed after the action
    }

    void menuContents()
    {
        OrvOperatorMenu oneScreen("Alice", "WS-7", true, 1, nullptr);
        QVERIFY(oneScreen.findChild<QPushButton*>("pbSwap")->isHidden());
        QCOMPARE(oneScreen.findChild<QLabel*>("lbOperatorName")->text(), QStringLiteral("Alice"));
        QCOMPARE(oneScreen.findChild<QLabel*>("lbWorkspaceId")->text(), QStringLiteral("Workspace: >>>WS-7<<<"));
        OrvOperatorMenu hidden("Bob", "WS-7", false, 2, nullptr);
        QVERIFY(hidden.findChild<QLabel*>("lbWorkspaceId")->isHidden());
        QVERIFY(!hidden.findChild<QPushButton*>("pbSwap")->isHidden());
        hidden.setTerminalButton(false);
        QVERIFY(hidden.findChild<QPushButton*>("pbWindow")->isHidden());
        hidden.setOperatorSettingsButton(false);
        QVERIFY(hidden.findChild<QPushButton*>("pbOperatorSettings")->isHidden());
        // Control picks the plain terminal.
        QCOMPARE(OrvOperatorMenu::terminalProgram(Qt::NoModifier), QStringLiteral("konsole"));
        QCOMPARE(OrvOperatorMenu::terminalProgram(Qt::ControlModifier), QStringLiteral("xterm"));
        QCOMPARE(OrvOperatorMenu::terminalProgram(Qt::ControlModifier | Qt::ShiftModifier), QStringLiteral("konsole"));
    }

    // The operator menu's language buttons switch the whole application live, and back.
    void languageButtonsSwitchTheShell()
    {
        OrvBaseLayoutWidget shell(nullptr, true);
        shell.show();
        auto* page = new OrvTest::EditPage;
        shell.addWidget(page, "G", "I", eDialogTab, true, true);
        OrvOperatorMenu menu("Alice", "", false, 1, nullptr);
        QVERIFY(menu.findChild<QPushButton*>("pbInt")->isChecked());
        const auto texts = [&] {
            return QStringList{menu.findChild<QPushButton*>("pbLogout")->text(),
                               shell.findChild<QPushButton*>("pbPlanning")->text(),
                               shell.findChild<QLabel*>("lbExerciseName")->text(),
                               page->getHelper()->findChild<QPushButton*>("pbClose")->text()};
        };
        menu.findChild<QPushButton*>("pbGer")->click();
        QCOMPARE(Dax::translationLocale(), QByteArray("de_DE"));
        QCoreApplication::processEvents();
        QCOMPARE(texts(), QStringList({"Abmelden", "Planung", "keine Übung", "Abbrechen"}));
        menu.findChild<QPushButton*>("pbInt")->click();
        QCOMPARE(Dax::translationLocale(), QByteArray("en_GB"));
        QCoreApplication::processEvents();
        QCOMPARE(texts(), QStringList({"Logout", "Planning", "no exercise", "Cancel"}));
    }

    void splash()
    {
        Splash* splash = Splash::getInstance();
        splash->show();
        QTest::mouseClick(splash, Qt::LeftButton);
        QVERIFY(splash->isVisible()); // clicks never close it
        OrvGlobalWaitDialog::getInstance()->setVisible(false);
        splash->done();
        QVERIFY(!splash->isVisible());
        QVERIFY(OrvGlobalWaitDialog::getInstance()->isVisible());
        OrvGlobalWaitDialog::getInstance()->setVisible(false);
        splash->done(); // the second call does nothing
        QVERIFY(!OrvGlobalWaitDialog::getInstance()->isVisible());
        OrvGlobalWaitDialog::getInstance()->setVisible(true);
    }

    void background()
    {
        QTest::ignoreMessage(QtWarningMsg,
                             "BackgroundWidget::c_tor: file missing or is not a valid image ':/project/background.png'");
        OrvBackgroundWidget widget(nullptr);
        QSignalSpy actions(&widget, &OrvBackgroundWidget::signalOperatorAction);
        widget.show();
        QTest::mouseMove(&widget, QPoint(10, 10));
        QTest::mouseMove(&widget, QPoint(20, 20));
        QTest::mouseClick(&widget, Qt::LeftButton);
        QTest::keyClick(&widget, Qt::Key_A);
        QVERIFY(actions.count() >= 4);
        widget.close();
        QVERIFY(widget.isVisible()); // the operator cannot close it
    }
};

QTEST_MAIN(TestOrvOperatorMenu)
#include "tst_orv_operator_menu.moc"
