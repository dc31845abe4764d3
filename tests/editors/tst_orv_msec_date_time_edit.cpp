#include <orv_msec_date_time_edit.h>

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

#include <ctime>

using namespace OrvWidgets;

namespace {
qint64 utc(const char* iso)
{
    return QDateTime::fromString(QString::fromLatin1(iso), Qt::ISODateWithMs).toMSecsSinceEpoch();
}
} // namespace

class TestOrvMSecDateTimeEdit : public QObject
{
    Q_OBJECT
    QWidget m_window;
    OrvMSecDateTimeEdit* m_edit = new OrvMSecDateTimeEdit;

    // Puts the edit at an instant, focuses it and makes `section` the current one.
    void start(int hours, const char* iso, QDateTimeEdit::Section section)
    {
        m_edit->setTimezoneHoursOffset(hours);
        m_edit->setMsecsSinceEpoch(utc(iso));
        m_edit->setFocus();
        m_edit->setSelectedSection(section);
    }

private Q_SLOTS:
    void initTestCase()
    {
        // A machine zone with daylight-saving changes must not disturb the shown fields.
        qputenv("TZ", "Europe/Berlin");
        tzset();
        auto* layout = new QVBoxLayout(&m_window);
        m_edit->setLocale(QLocale::c());
        layout->addWidget(m_edit);
        layout->addWidget(new QLineEdit);
        m_window.show();
        m_window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
    }

    void roundTrip_data()
    {
        QTest::addColumn<qint64>("msecs");
        QTest::newRow("epoch") << qint64(0);
        QTest::newRow("before epoch") << qint64(-86399999);
        QTest::newRow("spring gap in Berlin") << utc("2026-03-29T01:30:00.010Z");
        QTest::newRow("autumn overlap in Berlin") << utc("2026-10-25T00:30:00.990Z");
        QTest::newRow("leap day") << utc("2024-02-29T23:59:59.999Z");
    }
    void roundTrip()
    {
        QFETCH(qint64, msecs);
        OrvMSecDateTimeEdit edit;
        for (int hours = -12; hours <= 14; ++hours) {
            edit.setTimezoneHoursOffset(hours);
            edit.setMsecsSinceEpoch(msecs);
            QCOMPARE(edit.msecsSinceEpoch(), msecs);
            const QDateTime wall = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC).addSecs(hours * 3600);
            QCOMPARE(edit.dateTime().date(), wall.date());
            QCOMPARE(edit.dateTime().time(), wall.time());
            // A date-time in any zone is taken by its instant.
            edit.setDateTime(QDateTime::fromMSecsSinceEpoch(msecs, Qt::LocalTime));
            QCOMPARE(edit.msecsSinceEpoch(), msecs);
        }
    }

    void offsetMovesFieldsNotInstant()
    {
        OrvMSecDateTimeEdit edit(QDateTime(QDate(2026, 5, 4), QTime(3, 2, 1), Qt::UTC));
        edit.setLocale(QLocale::c());
        QCOMPARE(edit.text(), QStringLiteral("04.05.26 03:02:01.000"));
        edit.setTimezoneHoursOffset(2);
        edit.setMsecsSinceEpoch(0);
        QCOMPARE(edit.text(), QStringLiteral("01.01.70 02:00:00.000"));
        QCOMPARE(edit.msecsSinceEpoch(), qint64(0));
        edit.setTimezoneHoursOffset(-3);
        QCOMPARE(edit.text(), QStringLiteral("31.12.69 21:00:00.000"));
        QCOMPARE(edit.msecsSinceEpoch(), qint64(0));
        // A time-only start still allows every date.
        OrvMSecDateTimeEdit fromTime(QTime(13, 14, 15, 160));
        fromTime.setCurrentSection(QDateTimeEdit::DaySection);
        fromTime.stepBy(1);
        QCOMPARE(fromTime.dateTime(), QDateTime(QDate(2000, 1, 2), QTime(13, 14, 15, 160), Qt::UTC));
    }

    void roundingWhenLeft_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("shown");
        QTest::newRow("12.345 up") << "12345" << 10 << "12.350";
        QTest::newRow("12.344 down") << "12344" << 10 << "12.340";
        QTest::newRow("step 250 carries") << "59876" << 250 << "00.000";
        QTest::newRow("step 1") << "59876" << 1 << "59.876";
    }
    void roundingWhenLeft()
    {
        QFETCH(QString, typed);
        QFETCH(int, step);
        QFETCH(QString, shown);
        m_edit->setMsecStepSize(step);
        start(1, "2026-11-21T09:59:00.000Z", QDateTimeEdit::SecondSection);
        // A full section moves on to the next; Tab from the last one leaves the edit.
        QTest::keyClicks(m_edit, typed);
        QTest::keyClick(m_edit, Qt::Key_Tab);
        QVERIFY(!m_edit->hasFocus());
        QCOMPARE(m_edit->text().mid(15), shown);
        QCOMPARE(m_edit->msecsSinceEpoch() % step, qint64(0));
    }

    void steppingCarries_data()
    {
        QTest::addColumn<int>("section");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("shown");
        QTest::newRow("second up to next day") << int(QDateTimeEdit::SecondSection) << int(Qt::Key_Up) << "01.01.27 00:00:00.500";
        QTest::newRow("msec by step") << int(QDateTimeEdit::MSecSection) << int(Qt::Key_Up) << "31.12.26 23:59:59.510";
        QTest::newRow("minute page down") << int(QDateTimeEdit::MinuteSection) << int(Qt::Key_PageDown) << "31.12.26 23:49:59.500";
        QTest::newRow("month up") << int(QDateTimeEdit::MonthSection) << int(Qt::Key_Up) << "31.01.27 23:59:59.500";
        QTest::newRow("year down") << int(QDateTimeEdit::YearSection) << int(Qt::Key_Down) << "31.12.25 23:59:59.500";
    }
    void steppingCarries()
    {
        QFETCH(int, section);
        QFETCH(int, key);
        QFETCH(QString, shown);
        m_edit->setMsecStepSize(10);
        start(-5, "2027-01-01T04:59:59.500Z", QDateTimeEdit::Section(section));
        QTest::keyClick(m_edit, Qt::Key(key));
        QCOMPARE(m_edit->text(), shown);
        QCOMPARE(m_edit->currentSection(), QDateTimeEdit::Section(section));
    }
};

QTEST_MAIN(TestOrvMSecDateTimeEdit)
#include "tst_orv_msec_date_time_edit.moc"
