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
        QTest::newRow("superset") << 7 << 5 << true;
        QTest::newRow("partial") << 1 << 3 << false;
        QTest::newRow("negative mask") << -1 << 0x40000000 << true;
    }
    void rights()
    {
        QFETCH(int, held);
        QFETCH(int, asked);
        Session::getInstance()->setOperatorRights(held);
        QTEST(Session::getInstance()->hasOperatorRight(asked), "granted");
        Session::getInstance()->setOperatorRights(0);
    }

    void tablet()
    {
        auto* session = Session::getInstance();
        QSignalSpy spy(session, &Session::tabletChanged);
        session->setTablet(true);
        session->setTablet(true);
        QVERIFY(session->isTablet());
        QCOMPARE(spy.count(), 1);
        session->setTablet(false);
    }

    // Values persist per file; a corrupt file gives defaults.
    void settings()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("operator.ini");
        {
            OrvUtils::Settings settings(path);
            QCOMPARE(settings.value("TimeSettings", "Offset", 42).toInt(), 42); // missing file: default
            settings.setValue("TimeSettings", "Offset", 3600000);
            settings.setValue("", "topLevel", true);
            settings.remove("TimeSettings", "Nothing");
        }
        OrvUtils::Settings reread(path);
        QCOMPARE(reread.value("TimeSettings", "Offset").toLongLong(), 3600000);
        QCOMPARE(reread.value("", "topLevel").toBool(), true);
        reread.remove("TimeSettings", "Offset");
        QVERIFY(!reread.value("TimeSettings", "Offset").isValid());

        // The project file is its own and follows setFileName.
        auto* project = OrvUtils::ProjectSettings::getInstance();
        QVERIFY(static_cast<void*>(project) != static_cast<void*>(OrvUtils::OperatorSettings::getInstance()));
        project->setFileName(dir.filePath("a.ini"));
        project->setValue("exm", "enableEditPhases", true);
        project->setFileName(dir.filePath("b.ini"));
        QVERIFY(!project->value("exm", "enableEditPhases").isValid());
        project->setFileName(dir.filePath("a.ini"));
        QCOMPARE(project->value("exm", "enableEditPhases").toBool(), true);

        QFile file(dir.filePath("broken.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[TimeSettings\nOffset=5\n\xff\xfe\x00garbage=\"\n[[[\n");
        file.close();
        OrvUtils::Settings broken(file.fileName());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("corrupt settings file"));
        QCOMPARE(broken.value("TimeSettings", "Offset", 7).toInt(), 7);
        broken.setValue("TimeSettings", "Offset", 9); // writing starts afresh
        QCOMPARE(broken.value("TimeSettings", "Offset", 7).toInt(), 9);
    }

    void loggerChildren()
    {
        Dax::Logger& root = Dax::DaxLoggerBootstrap::getDaxRootLogger();
        Dax::Logger& a = root.child("OrvWidget.OrvDialog");
        QCOMPARE(&a, &root.child("OrvWidget.OrvDialog"));
        QVERIFY(&a != &root.child("OrvWidget.Other"));
        QVERIFY(a.isWarnEnabled() && a.isDebugEnabled());
        QVERIFY(!a.isTraceEnabled()); // trace is opt-in through logging rules
        QTest::ignoreMessage(QtWarningMsg, "a warning");
        a.warn("a warning");
        QTest::ignoreMessage(QtDebugMsg, "a debug line");
        a.debug("a debug line");
        a.trace("not printed");
        QLoggingCategory::setFilterRules("OrvWidget.OrvDialog.trace.debug=true\nOrvWidget.OrvDialog.debug=false");
        QVERIFY(a.isTraceEnabled() && !a.isDebugEnabled());
        QTest::ignoreMessage(QtDebugMsg, "a trace line");
        a.trace("a trace line");
        a.debug("suppressed");
        QLoggingCategory::setFilterRules(QString());
    }

    // Whether the widget library and its translation load depends on the linker
    // here; the widget tests check the translated texts.
    void translationLocale()
    {
        QCOMPARE(Dax::translationLocale(), QByteArray("en_GB"));
        Dax::setTranslationLocale("de_DE", "nothing-here");
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
        for (int i = 0; i < 12; ++i) {
            QTest::addRow("%c", "ABCDEFGHIKLM"[i]) << "ABCDEFGHIKLM"[i] << true << i + 1;
            QTest::addRow("%c", "NOPQRSTUVWXY"[i]) << "NOPQRSTUVWXY"[i] << true << -(i + 1);
        }
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
        if (!valid)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("DTG::setTimezone: invalid zone letter"));
        DTG::setTimezone(zone);
        QCOMPARE(DTG::timezone(), valid ? zone : 'Z');
    }

    void dtgFormats_data()
    {
        QTest::addColumn<QDateTime>("instant");
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("type");
        QTest::addColumn<char>("zone");
        QTest::addColumn<QString>("expected");
        using namespace DTG;
        const QDateTime t(QDate(2026, 11, 14), QTime(15, 30, 7), Qt::UTC);
        QTest::newRow("short zulu") << t << int(eShort) << int(eZulu) << 'B' << "141530Z";
        QTest::newRow("short seconds") << t << int(eShortSeconds) << int(eZulu) << 'Z' << "14153007Z";
        QTest::newRow("long") << t << int(eLong) << int(eZulu) << 'Z' << "141530Z NOV 26";
        QTest::newRow("long seconds") << t << int(eLongSeconds) << int(eZulu) << 'Z' << "14153007Z NOV 26";
        QTest::newRow("local B +1") << t << int(eShort) << int(eLocalZone) << 'B' << "141730B";
        QTest::newRow("local M +12 next day") << t << int(eLong) << int(eLocalZone) << 'M' << "150330M NOV 26";
        QTest::newRow("local Y -12") << t << int(eLongSeconds) << int(eLocalZone) << 'Y' << "14033007Y NOV 26";
        const QDateTime newYear(QDate(2027, 1, 1), QTime(0, 30), Qt::UTC);
        QTest::newRow("local N back a year") << newYear << int(eLong) << int(eLocalZone) << 'N' << "312330N DEC 26";
    }
    void dtgFormats()
    {
        QFETCH(QDateTime, instant);
        QFETCH(int, format);
        QFETCH(int, type);
        QFETCH(char, zone);
        QFETCH(QString, expected);
        DTG::setTimezone(zone);
        const auto f = DTG::DisplayFormat(format);
        QCOMPARE(DTG::toString(QDateTime(), f, DTG::DateTimeType(type)), QString());
        QCOMPARE(DTG::toString(instant, f, DTG::DateTimeType(type)), expected);
        // A local-time input describes the same instant.
        QCOMPARE(DTG::toString(instant.toOffsetFromUtc(-5 * 3600), f, DTG::DateTimeType(type)), expected);
        DTG::setDateTimeType(DTG::DateTimeType(type));
        QCOMPARE(DTG::toStringMSec(instant.toMSecsSinceEpoch(), f), expected);
    }
};

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
