#include <dax_logger.h>
#include <dax_translation.h>
#include <idl_types.h>
#include <orv_session_data.h>
#include <orv_settings.h>
#include <tab_bar_tab_style.h>

#include <QtTest>

using Session = OrvSessionData::OrvSessionData;

class TestPlatform : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rights_data()
    {
        QTest::addColumn<int>("held");
        QTest::addColumn<int>("asked");
        QTest::addColumn<bool>("granted");
        QTest::newRow("right 0 without rights") << 0 << 0 << true;
        QTest::newRow("missing") << 0 << 4 << false;
        QTest::newRow("exact") << 4 << 4 << true;
        QTest::newRow("superset") << 7 << 5 << true;
        QTest::newRow("partial") << 1 << 3 << false;
        QTest::newRow("negative mask") << -1 << 0x40000000 << true;
    }
    void rights()
    {
        QFETCH(int, held);
        QFETCH(int, asked);
        QFETCH(bool, granted);
        auto* session = Session::getInstance();
        QCOMPARE(session, Session::getInstance());
        session->setOperatorRights(held);
        QCOMPARE(session->operatorRights(), held);
        QCOMPARE(session->hasOperatorRight(asked), granted);
        session->setOperatorRights(0);
    }

    void tablet()
    {
        auto* session = Session::getInstance();
        QVERIFY(!session->isTablet());
        QSignalSpy spy(session, &Session::tabletChanged);
        session->setTablet(true);
        session->setTablet(true);
        QVERIFY(session->isTablet());
        QCOMPARE(spy.count(), 1);
        session->setTablet(false);
    }

    void settingsRoundTrip()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("operator.ini");
        {
            OrvUtils::Settings settings(path);
            QCOMPARE(settings.value("TimeSettings", "Offset", 42).toInt(), 42); // missing file: default
            settings.setValue("TimeSettings", "Offset", 3600000);
            settings.setValue("TimeSettings", "FixedTime", QStringLiteral("2026-11-14T15:30:00Z"));
            settings.setValue("", "topLevel", true);
            settings.remove("TimeSettings", "Nothing");
        }
        OrvUtils::Settings reread(path);
        QCOMPARE(reread.value("TimeSettings", "Offset").toLongLong(), 3600000);
        QCOMPARE(reread.value("TimeSettings", "FixedTime").toString(), QStringLiteral("2026-11-14T15:30:00Z"));
        QCOMPARE(reread.value("", "topLevel").toBool(), true);
        reread.remove("TimeSettings", "Offset");
        QVERIFY(!reread.value("TimeSettings", "Offset").isValid());
        QCOMPARE(reread.fileName(), path);
    }

    void settingsRedirect()
    {
        QTemporaryDir dir;
        auto* settings = OrvUtils::ProjectSettings::getInstance();
        QCOMPARE(settings, OrvUtils::ProjectSettings::getInstance());
        QVERIFY(static_cast<void*>(settings) != static_cast<void*>(OrvUtils::OperatorSettings::getInstance()));
        settings->setFileName(dir.filePath("a.ini"));
        settings->setValue("exm", "enableEditPhases", true);
        settings->setFileName(dir.filePath("b.ini"));
        QVERIFY(!settings->value("exm", "enableEditPhases").isValid());
        settings->setFileName(dir.filePath("a.ini"));
        QCOMPARE(settings->value("exm", "enableEditPhases").toBool(), true);
    }

    void corruptSettingsGiveDefaults()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("broken.ini");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[TimeSettings\nOffset=5\n\xff\xfe\x00garbage=\"\n[[[\n");
        file.close();
        OrvUtils::Settings settings(path);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("corrupt settings file"));
        QCOMPARE(settings.value("TimeSettings", "Offset", 7).toInt(), 7);
        // Writing starts afresh.
        settings.setValue("TimeSettings", "Offset", 9);
        QCOMPARE(settings.value("TimeSettings", "Offset", 7).toInt(), 9);
    }

    void loggerChildren()
    {
        Dax::Logger& root = Dax::DaxLoggerBootstrap::getDaxRootLogger();
        Dax::Logger& a = root.child("OrvWidget.OrvDialog");
        QCOMPARE(&a, &root.child("OrvWidget.OrvDialog"));
        QVERIFY(&a != &root.child("OrvWidget.Other"));
        QCOMPARE(a.name(), QStringLiteral("OrvWidget.OrvDialog"));
        QVERIFY(a.isWarnEnabled());
        QVERIFY(a.isDebugEnabled());
        QVERIFY(!a.isTraceEnabled()); // trace is opt-in through logging rules
        QTest::ignoreMessage(QtWarningMsg, "a warning");
        a.warn("a warning");
        QTest::ignoreMessage(QtDebugMsg, "a debug line");
        a.debug("a debug line");
        a.trace("not printed");
        QLoggingCategory::setFilterRules("OrvWidget.OrvDialog.trace.debug=true\nOrvWidget.OrvDialog.debug=false");
        QVERIFY(a.isTraceEnabled());
        QVERIFY(!a.isDebugEnabled());
        QTest::ignoreMessage(QtDebugMsg, "a trace line");
        a.trace("a trace line");
        a.debug("suppressed");
        QLoggingCategory::setFilterRules(QString());
    }

    void translationLocale()
    {
        QCOMPARE(Dax::translationLocale(), QByteArray("en_GB"));
        // Whether the widget library (and its translation) is loaded depends on the
        // linker here; the widget tests check the translated texts.
        Dax::setTranslationLocale("de_DE", "nothing-here");
        QCOMPARE(Dax::translationLocale(), QByteArray("de_DE"));
        QCOMPARE(QLocale().name(), QStringLiteral("de_DE"));
        QTest::ignoreMessage(QtWarningMsg, "Dax::setTranslationLocale: empty locale ignored");
        Dax::setTranslationLocale("", "nothing-here");
        QCOMPARE(Dax::translationLocale(), QByteArray("de_DE"));
        Dax::setTranslationLocale("en_GB", "nothing-here");
        QCOMPARE(Dax::translationLocale(), QByteArray("en_GB"));
    }

    void tabStyleColoursAreDistinct()
    {
        const QList<QColor> colours = {
            Styles::TabBarTabStyle::primaryNormal(),   Styles::TabBarTabStyle::primarySelected(),
            Styles::TabBarTabStyle::primaryDisabled(), Styles::TabBarTabStyle::secondaryNormal(),
            Styles::TabBarTabStyle::secondarySelected(), Styles::TabBarTabStyle::secondaryDisabled(),
        };
        for (int i = 0; i < colours.size(); ++i) {
            QVERIFY(colours[i].isValid());
            QCOMPARE(colours[i].alpha(), 255);
            for (int j = i + 1; j < colours.size(); ++j)
                QVERIFY(colours[i] != colours[j]);
        }
        QCOMPARE(int(IDL::Replay), 4);
    }
};

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
