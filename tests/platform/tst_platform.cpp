#include <dax_logger.h>
#include <dax_translation.h>
#include <dtg.h>
#include <orv_session_data.h>
#include <orv_settings.h>

#include <QtTest>

using Session = OrvSessionData::OrvSessionData;

class TestPlatform : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup()
    {
        DTG::setTimezone('Z');
        DTG::setDateTimeType(DTG::eZulu);
    }

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
        Session::getInstance()->setOperatorRights(held);
        QCOMPARE(Session::getInstance()->hasOperatorRight(asked), granted);
        Session::getInstance()->setOperatorRights(0);
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

    void dtgZoneLetters_data()
    {
        QTest::addColumn<char>("zone");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<int>("hours");
        const char* east = "ABCDEFGHI";
        for (int i = 0; i < 9; ++i)
            QTest::addRow("%c", east[i]) << east[i] << true << i + 1;
        for (char c : {'K', 'L', 'M'})
            QTest::addRow("%c", c) << c << true << c - 'K' + 10;
        const char* west = "NOPQRSTUVWXY";
        for (int i = 0; i < 12; ++i)
            QTest::addRow("%c", west[i]) << west[i] << true << -(i + 1);
        QTest::newRow("Z") << 'Z' << true << 0;
        QTest::newRow("J is local time, no letter") << 'J' << false << 0;
        for (char c : {'a', 'z', '1', '\0', '@', '['})
            QTest::addRow("invalid %d", c) << c << false << 0;
    }
    void dtgZoneLetters()
    {
        QFETCH(char, zone);
        QFETCH(bool, valid);
        QFETCH(int, hours);
        bool ok = !valid;
        QCOMPARE(DTG::timezone2Secs(zone, &ok), hours * 3600);
        QCOMPARE(ok, valid);
        QCOMPARE(DTG::isTimezoneValid(zone), valid);
        QCOMPARE(DTG::timezone2Secs(zone, nullptr), hours * 3600); // null ok pointer is allowed
    }

    void dtgFormats_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("type");
        QTest::addColumn<char>("zone");
        QTest::addColumn<QString>("expected");
        // 2026-11-14 15:30:07 UTC
        QTest::newRow("short zulu") << int(DTG::eShort) << int(DTG::eZulu) << 'B' << "141530Z";
        QTest::newRow("short seconds") << int(DTG::eShortSeconds) << int(DTG::eZulu) << 'Z' << "14153007Z";
        QTest::newRow("long") << int(DTG::eLong) << int(DTG::eZulu) << 'Z' << "141530Z NOV 26";
        QTest::newRow("long seconds") << int(DTG::eLongSeconds) << int(DTG::eZulu) << 'Z' << "14153007Z NOV 26";
        QTest::newRow("local B +1") << int(DTG::eShort) << int(DTG::eLocalZone) << 'B' << "141730B";
        QTest::newRow("local M +12 next day") << int(DTG::eLong) << int(DTG::eLocalZone) << 'M' << "150330M NOV 26";
        QTest::newRow("local Y -12") << int(DTG::eLongSeconds) << int(DTG::eLocalZone) << 'Y' << "14033007Y NOV 26";
        QTest::newRow("local Z") << int(DTG::eShort) << int(DTG::eLocalZone) << 'Z' << "141530Z";
    }
    void dtgFormats()
    {
        QFETCH(int, format);
        QFETCH(int, type);
        QFETCH(char, zone);
        QFETCH(QString, expected);
        DTG::setTimezone(zone);
        const QDateTime instant(QDate(2026, 11, 14), QTime(15, 30, 7), Qt::UTC);
        QCOMPARE(DTG::toString(instant, DTG::DisplayFormat(format), DTG::DateTimeType(type)), expected);
        // A local-time input describes the same instant.
        QCOMPARE(DTG::toString(instant.toOffsetFromUtc(-5 * 3600), DTG::DisplayFormat(format),
                               DTG::DateTimeType(type)),
                 expected);
        DTG::setDateTimeType(DTG::DateTimeType(type));
        QCOMPARE(DTG::toStringMSec(instant.toMSecsSinceEpoch(), DTG::DisplayFormat(format)), expected);
    }

    void dtgYearBoundary()
    {
        DTG::setTimezone('N');
        const QDateTime newYear(QDate(2027, 1, 1), QTime(0, 30), Qt::UTC);
        QCOMPARE(DTG::toString(newYear, DTG::eLong, DTG::eLocalZone), QStringLiteral("312330N DEC 26"));
        QCOMPARE(DTG::toString(QDateTime(), DTG::eLong, DTG::eZulu), QString());
    }

    void dtgInvalidZoneIsRefused()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("DTG::setTimezone: invalid zone letter"));
        DTG::setTimezone('J');
        QCOMPARE(DTG::timezone(), 'Z');
        DTG::setTimezone('Q');
        QCOMPARE(DTG::timezone(), 'Q');
    }
};

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
