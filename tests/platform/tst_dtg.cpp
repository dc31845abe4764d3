#include <dtg.h>

#include <QtTest>

class TestDtg : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup()
    {
        DTG::setTimezone('Z');
        DTG::setDateTimeType(DTG::eZulu);
    }

    void zoneLetters_data()
    {
        QTest::addColumn<char>("zone");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<int>("hours");
        const char* east = "ABCDEFGHI";
        for (int i = 0; i < 9; ++i)
            QTest::addRow("%c", east[i]) << east[i] << true << i + 1;
        QTest::newRow("K") << 'K' << true << 10;
        QTest::newRow("L") << 'L' << true << 11;
        QTest::newRow("M") << 'M' << true << 12;
        const char* west = "NOPQRSTUVWXY";
        for (int i = 0; i < 12; ++i)
            QTest::addRow("%c", west[i]) << west[i] << true << -(i + 1);
        QTest::newRow("Z") << 'Z' << true << 0;
        QTest::newRow("J is local time, no letter") << 'J' << false << 0;
        QTest::newRow("lower case") << 'a' << false << 0;
        QTest::newRow("lower z") << 'z' << false << 0;
        QTest::newRow("digit") << '1' << false << 0;
        QTest::newRow("nul") << '\0' << false << 0;
        QTest::newRow("at sign") << '@' << false << 0;
        QTest::newRow("bracket") << '[' << false << 0;
    }
    void zoneLetters()
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

    void formats_data()
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
    void formats()
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

    void yearBoundaryAndMonths()
    {
        QCOMPARE(DTG::months().size(), 12);
        QCOMPARE(DTG::months().first(), QStringLiteral("JAN"));
        QCOMPARE(DTG::months().last(), QStringLiteral("DEC"));
        DTG::setTimezone('N');
        const QDateTime newYear(QDate(2027, 1, 1), QTime(0, 30), Qt::UTC);
        QCOMPARE(DTG::toString(newYear, DTG::eLong, DTG::eLocalZone), QStringLiteral("312330N DEC 26"));
        QCOMPARE(DTG::toString(QDateTime(), DTG::eLong, DTG::eZulu), QString());
    }

    void invalidZoneIsRefused()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("DTG::setTimezone: invalid zone letter"));
        DTG::setTimezone('J');
        QCOMPARE(DTG::timezone(), 'Z');
        DTG::setTimezone('Q');
        QCOMPARE(DTG::timezone(), 'Q');
    }
};

QTEST_GUILESS_MAIN(TestDtg)
#include "tst_dtg.moc"
