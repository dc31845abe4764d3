#include "date_time_edit_test_util.h"

#include <orv_settings.h>

namespace OrvWidgets {
// Reaches the field setters, which the editor keeps to itself.
struct OrvDateTimeEditTest
{
    static bool set(OrvDateTimeEdit& e, const QString& what, const QList<int>& v)
    {
        return what == QLatin1String("day")   ? e.setDay(v[0])
             : what == QLatin1String("hms")   ? e.setHHMMSS(v[0], v[1], v[2])
             : what == QLatin1String("month") ? e.setMonth(v[0])
                                              : e.setYear(v[0]);
    }
};
} // namespace OrvWidgets

using namespace OrvWidgets;
using namespace DateTimeEditTest;

namespace {
void setShown(OrvDateTimeEdit& e, const QString& text)
{
    for (int i = 0; i < 5; ++i)
        field(e, kFields[i])->setText(text.section(QLatin1Char(' '), i, i));
}
} // namespace

class TestOrvDateTimeEdit : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void zoneLetters_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("zone");
        for (char c = 'A'; c <= 'Z'; ++c) {
            const QString upper(QLatin1Char{c});
            const QString expected = c == 'J' ? QString() : upper;
            QTest::addRow("%c", c) << upper << expected;
            QTest::addRow("%c lower", c) << upper.toLower() << expected;
        }
        QTest::newRow("digit") << "5" << "";
        QTest::newRow("blank") << " " << "";
    }
    void zoneLetters()
    {
        QFETCH(QString, typed);
        QFETCH(QString, zone);
        OrvDateTimeEdit edit;
        QCOMPARE(edit.getTimezone(), 'Z');
        QVERIFY(edit.setMsecsSinceEpoch(utc(2026, 11, 14, 23, 30), true));
        QLineEdit* tz = field(edit, "leLongTZ");
        tz->clear();
        QTest::keyClicks(tz, typed);
        QCOMPARE(tz->text(), zone);
        // A new zone shows the same instant in its local time.
        QCOMPARE(edit.msecsSinceEpoch(), zone.isEmpty() ? 0 : utc(2026, 11, 14, 23, 30));
        if (zone == QLatin1String("B"))
            QCOMPARE(shown(edit), "15 013000 B NOV 26");
    }

    void dayLimits_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::addColumn<bool>("valid");
        QTest::newRow("31 FEB") << "31 120000 Z FEB 26" << false;
        QTest::newRow("29 FEB 2000") << "29 120000 Z FEB 00" << true;
        QTest::newRow("29 FEB 2096") << "29 120000 Z FEB 96" << true;
        QTest::newRow("29 FEB 2001") << "29 120000 Z FEB 01" << false;
        for (const char* month : {"APR", "JUN", "SEP", "NOV"}) {
            QTest::addRow("30 %s", month) << QStringLiteral("30 120000 Z %1 26").arg(QLatin1String(month)) << true;
            QTest::addRow("31 %s", month) << QStringLiteral("31 120000 Z %1 26").arg(QLatin1String(month)) << false;
        }
        QTest::newRow("31 DEC") << "31 235959 Z DEC 99" << true;
        QTest::newRow("hour 24") << "01 240000 Z JAN 26" << false;
        QTest::newRow("month lower case") << "01 120000 Z jan 26" << false;
    }
    void dayLimits()
    {
        QFETCH(QString, fields);
        QFETCH(bool, valid);
        OrvDateTimeEdit edit;
        setShown(edit, fields);
        QCOMPARE(edit.msecsSinceEpoch() != 0, valid);
        QCOMPARE(edit.isValidDate(), valid);
        const QList<QLineEdit*> fieldEdits = edit.findChildren<QLineEdit*>();
        QCOMPARE(std::any_of(fieldEdits.cbegin(), fieldEdits.cend(),
                             [](QLineEdit* f) { return f->styleSheet() == QLatin1String("background-color: yellow;"); }),
                 !valid);
    }

    void fieldRefusals_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<QList<int>>("args");
        QTest::addColumn<QString>("fields"); // empty: refused, fields unchanged
        QTest::newRow("day 32") << "day" << QList<int>{32} << "";
        QTest::newRow("day 31 in FEB keeps old") << "day" << QList<int>{31} << "";
        QTest::newRow("day 28") << "day" << QList<int>{28} << "28 153000 Z FEB 26";
        QTest::newRow("hour 24") << "hms" << QList<int>{24, 0, 0} << "";
        QTest::newRow("second -1") << "hms" << QList<int>{0, 0, -1} << "";
        QTest::newRow("hms") << "hms" << QList<int>{7, 5, 9} << "14 070509 Z FEB 26";
        QTest::newRow("month 13") << "month" << QList<int>{13} << "";
        QTest::newRow("month 12") << "month" << QList<int>{12} << "14 153000 Z DEC 26";
        QTest::newRow("year 1999") << "year" << QList<int>{1999} << "";
        QTest::newRow("year 2100") << "year" << QList<int>{2100} << "";
        QTest::newRow("year 7") << "year" << QList<int>{7} << "14 153000 Z FEB 07";
        QTest::newRow("year 2099") << "year" << QList<int>{2099} << "14 153000 Z FEB 99";
    }
    void fieldRefusals()
    {
        QFETCH(QString, what);
        QFETCH(QList<int>, args);
        QFETCH(QString, fields);
        OrvDateTimeEdit edit;
        const QString before = QStringLiteral("14 153000 Z FEB 26");
        setShown(edit, before);
        QCOMPARE(OrvDateTimeEditTest::set(edit, what, args), !fields.isEmpty());
        QCOMPARE(shown(edit), fields.isEmpty() ? before : fields);
    }

    void fixupHHMMSS_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fixed");
        QTest::newRow("first digit 2") << "2" << "2";
        QTest::newRow("first digit 3") << "3" << "";
        QTest::newRow("hour 23") << "23" << "23";
        QTest::newRow("hour 25") << "25" << "2";
        QTest::newRow("minute digit 5") << "235" << "235";
        QTest::newRow("minute digit 6") << "236" << "23";
        QTest::newRow("minute 59") << "2359" << "2359";
        QTest::newRow("second digit 6") << "23596" << "2359";
        QTest::newRow("second 60") << "235960" << "23596";
    }
    void fixupHHMMSS()
    {
        QFETCH(QString, text);
        QFETCH(QString, fixed);
        OrvDateTimeEdit edit;
        QSignalSpy changed(&edit, &OrvDateTimeEdit::dateTimeChanged);
        QLineEdit* hms = field(edit, "leLongHHMMSS");
        hms->setText(text);
        QVERIFY(QMetaObject::invokeMethod(&edit, "fixupHHMMSS"));
        QCOMPARE(hms->text(), fixed);
        QCOMPARE(hms->cursorPosition(), fixed.size());
        QCOMPARE(changed.count(), 1);
    }

    void roundTrip_data()
    {
        QTest::addColumn<char>("zone");
        QTest::addColumn<qint64>("msec");
        QTest::addColumn<QString>("fields");
        QTest::newRow("Z") << 'Z' << utc(2026, 11, 14, 15, 30) << "14 153000 Z NOV 26";
        QTest::newRow("A, milliseconds dropped") << 'A' << utc(2026, 11, 14, 15, 30) + 999 << "14 163000 A NOV 26";
        QTest::newRow("M into next year") << 'M' << utc(2026, 12, 31, 13) << "01 010000 M JAN 27";
        QTest::newRow("Y into leap day") << 'Y' << utc(2024, 3, 1, 5) << "29 170000 Y FEB 24";
        QTest::newRow("N before 2000") << 'N' << utc(2000, 1, 1) << "";
        QTest::newRow("A after 2099") << 'A' << utc(2099, 12, 31, 23) << "";
        QTest::newRow("huge") << 'M' << std::numeric_limits<qint64>::max() << "";
    }
    void roundTrip()
    {
        QFETCH(char, zone);
        QFETCH(qint64, msec);
        QFETCH(QString, fields);
        OrvDateTimeEdit edit;
        QVERIFY(edit.setTimezone(zone));
        QSignalSpy changed(&edit, &OrvDateTimeEdit::dateTimeChanged);
        QCOMPARE(edit.setMsecsSinceEpoch(msec, true), !fields.isEmpty());
        QCOMPARE(changed.count(), fields.isEmpty() ? 0 : 1);
        QCOMPARE(edit.msecsSinceEpoch(), fields.isEmpty() ? 0 : msec / 1000 * 1000);
        if (!fields.isEmpty())
            QCOMPARE(shown(edit), fields);
    }

    void limits_data()
    {
        QTest::addColumn<qint64>("value");
        QTest::addColumn<qint64>("expected");
        const qint64 lo = utc(2026, 1, 1), hi = utc(2026, 12, 31);
        QTest::newRow("inside") << utc(2026, 6, 1) << utc(2026, 6, 1);
        QTest::newRow("below") << utc(2025, 6, 1) << lo;
        QTest::newRow("above") << utc(2027, 6, 1) << hi;
    }
    void limits()
    {
        QFETCH(qint64, value);
        QFETCH(qint64, expected);
        OrvDateTimeEdit edit;
        edit.setMinMaxTimeMSec(utc(2026, 1, 1), utc(2026, 12, 31));
        QCOMPARE(edit.msecsSinceEpoch(), utc(2026, 1, 1)); // a fresh editor moves into the range
        QVERIFY(edit.setMsecsSinceEpoch(value, true));
        QCOMPARE(edit.msecsSinceEpoch(), expected);
        // Without moving to the nearest, an instant outside is refused.
        const bool inside = value == expected;
        QCOMPARE(edit.setMsecsSinceEpoch(value, false), inside);
        QCOMPARE(edit.msecsSinceEpoch(), inside ? value : 0);
        // A typed instant outside the range is not taken; valid fields are needed before setting without nearest.
        field(edit, "leLongYear")->setText(QStringLiteral("30"));
        QCOMPARE(edit.msecsSinceEpoch(), 0);
        QVERIFY(!edit.isValidDate());
        QVERIFY(!edit.setMsecsSinceEpoch(expected, false));
        QVERIFY(edit.setMsecsSinceEpoch(expected, true));
    }

    void stepButtonsAndSlider()
    {
        OrvDateTimeEdit edit;
        const qint64 lo = utc(2026, 1, 1), hi = utc(2026, 1, 2);
        edit.setMinMaxTimeMSec(lo, hi);
        edit.setWithButtons(true);
        edit.setWithSlider(true);
        auto* slider = edit.findChild<QSlider*>(QStringLiteral("slTime"));
        QCOMPARE(slider->minimum(), int(lo / 1000));
        QCOMPARE(slider->maximum(), int(hi / 1000));
        QVERIFY(!edit.findChild<QPushButton*>(QStringLiteral("pbFFF"))->isEnabled());
        QVERIFY(edit.setMsecsSinceEpoch(lo + 30000, true));
        const auto click = [&](const char* name) {
            auto* button = edit.findChild<QPushButton*>(QLatin1String(name));
            QVERIFY(button->isEnabled());
            button->click();
        };
        click("pbFF");
        QCOMPARE(edit.msecsSinceEpoch(), lo + 90000);
        click("pbBBB");
        QCOMPARE(edit.msecsSinceEpoch(), lo);
        click("pbB");
        QCOMPARE(edit.msecsSinceEpoch(), lo);
        QCOMPARE(slider->value(), int(lo / 1000));
        slider->setValue(int(lo / 1000) + 7200);
        QCOMPARE(edit.msecsSinceEpoch(), lo + 7200000);
        edit.setWithButtons(false);
        edit.setWithSlider(false);
        QVERIFY(!edit.findChild<QPushButton*>(QStringLiteral("pbFFF")));
        QVERIFY(!edit.findChild<QSlider*>());
    }

    void checkable_data()
    {
        QTest::addColumn<bool>("checkable");
        QTest::newRow("checkable") << true;
        QTest::newRow("not checkable") << false;
    }
    void checkable()
    {
        QFETCH(bool, checkable);
        OrvDateTimeEdit edit(nullptr, false, checkable);
        auto* box = edit.findChild<QCheckBox*>();
        QCOMPARE(!box->isHidden(), checkable);
        QVERIFY(edit.setMsecsSinceEpoch(utc(2026, 5, 5), true));
        QSignalSpy toggled(&edit, &OrvDateTimeEdit::toggled);
        QCOMPARE(edit.setMsecsSinceEpoch(0, true), checkable);
        QCOMPARE(edit.isChecked(), !checkable);
        QCOMPARE(toggled.count(), checkable ? 1 : 0);
        QCOMPARE(edit.isValidDate(), checkable);
        QCOMPARE(edit.msecsSinceEpoch(), checkable ? 0 : utc(2026, 5, 5));
        QCOMPARE(field(edit, "leLongDay")->isEnabled(), !checkable);
        QVERIFY(edit.setProperty("checked", true));
        QCOMPARE(edit.msecsSinceEpoch(), utc(2026, 5, 5));
        edit.setCheckable(!checkable);
        QCOMPARE(!box->isHidden(), !checkable);
        QVERIFY(edit.isChecked());
    }

    void loadedInstants_data()
    {
        QTest::addColumn<int>("trigger"); // 0 Shift+F2, 1 F2, 2 "Now" button
        QTest::addColumn<bool>("callback");
        QTest::addColumn<qint64>("expected");
        const qint64 now = utc(2026, 3, 4, 5, 6, 7) + 890;
        QTest::newRow("Shift+F2 fixed") << 0 << false << utc(2030, 1, 2, 3, 4, 5);
        QTest::newRow("F2 now plus offset") << 1 << true << now - 890 + 60000;
        QTest::newRow("Now button") << 2 << true << now - 890 + 60000;
        QTest::newRow("F2 without callback") << 1 << false << utc(2026, 1, 1);
    }
    void loadedInstants()
    {
        QFETCH(int, trigger);
        QFETCH(bool, callback);
        QFETCH(qint64, expected);
        QTemporaryDir dir;
        auto* settings = OrvUtils::OperatorSettings::getInstance();
        settings->setFileName(dir.filePath(QStringLiteral("operator.ini")));
        settings->setValue(QStringLiteral("TimeSettings"), QStringLiteral("FixedTime"), utc(2030, 1, 2, 3, 4, 5));
        settings->setValue(QStringLiteral("TimeSettings"), QStringLiteral("Offset"), 60000);
        Window w(true);
        w.edit->setMsecsSinceEpoch(utc(2026, 1, 1), true);
        if (callback)
            w.edit->setRetrieveCurrentTimeCallback([] { return utc(2026, 3, 4, 5, 6, 7) + 890; });
        w.edit->setFocus();
        if (trigger == 2)
            w.edit->findChild<QPushButton*>(QStringLiteral("pbNow"))->click();
        else
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2, trigger == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        QCOMPARE(w.edit->msecsSinceEpoch(), expected);
    }

    void typing_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("fields");
        QTest::addColumn<QString>("focus");
        QTest::newRow("auto forward") << "14153000\tbNOV26" << "14 153000 B NOV 26" << "after";
        QTest::newRow("time padded on leaving") << "0715\t\tDEC9\t" << "07 150000 Z DEC 09" << "after";
        QTest::newRow("day 4 refused after 3") << "34" << "3  Z  " << "leLongDay";
        QTest::newRow("day 05") << "05" << "05  Z  " << "leLongHHMMSS";
        QTest::newRow("zone j refused, time from now") << "01\t" "j" << "01 101112   " << "leLongTZ";
        QTest::newRow("back over empty time") << "01\b\b1" << "1  Z  " << "leLongDay";
        QTest::newRow("month letters") << "01000000\t\tFEB" << "01 000000 Z FEB " << "leLongYear";
        QTest::newRow("wrong month letter") << "01\t\tX" << "01 101112 Z  " << "leLongMonth";
        QTest::newRow("lower-case month refused") << "01\t\tf" << "01 101112 Z  " << "leLongMonth";
    }
    void typing()
    {
        QFETCH(QString, keys);
        QFETCH(QString, fields);
        QFETCH(QString, focus);
        Window w;
        // Filling empty fields from "now" happens only when the widget is left.
        w.edit->setRetrieveCurrentTimeCallback([] { return utc(2026, 8, 9, 10, 11, 12); });
        field(*w.edit, "leLongDay")->setFocus();
        for (const QChar c : keys) {
            QWidget* target = QApplication::focusWidget();
            if (c == QLatin1Char('\t') || c == QLatin1Char('\b'))
                QTest::keyClick(target, c == QLatin1Char('\t') ? Qt::Key_Tab : Qt::Key_Backspace);
            else
                QTest::keyClick(target, c.toLatin1());
        }
        QCOMPARE(shown(*w.edit), fields);
        QWidget* expectedFocus = focus == QLatin1String("after") ? static_cast<QWidget*>(w.after)
                                                                 : field(*w.edit, focus.toLatin1().constData());
        QCOMPARE(QApplication::focusWidget(), expectedFocus);
        delete w.edit; // possibly with the focus inside: its fields must not call back into it
    }

    void wheelAndKeys_data()
    {
        QTest::addColumn<QString>("fieldName");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<int>("input"); // wheel +120/-120, or 1 Up, -1 Down, 5 Ctrl+Up
        QTest::addColumn<qint64>("expected");
        const qint64 base = utc(2024, 1, 31, 12, 30, 30);
        QTest::newRow("hour wheel") << "leLongHHMMSS" << 1 << 120 << base + 3600000;
        QTest::newRow("minute wheel back") << "leLongHHMMSS" << 3 << -120 << base - 60000;
        QTest::newRow("second Up") << "leLongHHMMSS" << 6 << 1 << base + 1000;
        QTest::newRow("minute Ctrl+Up") << "leLongHHMMSS" << 4 << 5 << base + 300000;
        QTest::newRow("day Down") << "leLongDay" << 0 << -1 << base - 86400000;
        QTest::newRow("month wheel clamps day") << "leLongMonth" << 1 << 120 << utc(2024, 2, 29, 12, 30, 30);
        QTest::newRow("year Down") << "leLongYear" << 2 << -1 << utc(2023, 1, 31, 12, 30, 30);
    }
    void wheelAndKeys()
    {
        QFETCH(QString, fieldName);
        QFETCH(int, cursor);
        QFETCH(int, input);
        QFETCH(qint64, expected);
        OrvDateTimeEdit edit;
        QVERIFY(edit.setMsecsSinceEpoch(utc(2024, 1, 31, 12, 30, 30), true));
        QLineEdit* target = field(edit, fieldName.toLatin1().constData());
        target->setCursorPosition(cursor);
        QSignalSpy changed(&edit, &OrvDateTimeEdit::dateTimeChanged);
        if (qAbs(input) == 120)
            QVERIFY(sendWheel(target, input));
        else
            QTest::keyClick(target, input > 0 ? Qt::Key_Up : Qt::Key_Down, input == 5 ? Qt::ControlModifier : Qt::NoModifier);
        QCOMPARE(edit.msecsSinceEpoch(), expected);
        QVERIFY(changed.count() >= 1);
        QVERIFY(target->hasSelectedText());
        // A time text that is not complete does not step.
        field(edit, "leLongHHMMSS")->setText(QStringLiteral("12345"));
        QVERIFY(!sendWheel(field(edit, "leLongHHMMSS"), 120));
        QCOMPARE(field(edit, "leLongHHMMSS")->text(), QStringLiteral("12345"));
    }

    void touchLayout()
    {
        OrvDateTimeEdit edit(nullptr, true, true);
        QVERIFY(edit.setMsecsSinceEpoch(utc(2026, 4, 5, 6, 7, 8), true));
        edit.setupUiTouch();
        QCOMPARE(edit.findChild<QSpinBox*>(QStringLiteral("spHour"))->value(), 6);
        QCOMPARE(edit.msecsSinceEpoch(), utc(2026, 4, 5, 6, 7, 8));
        QSignalSpy changed(&edit, &OrvDateTimeEdit::dateTimeChanged);
        edit.findChild<QSpinBox*>(QStringLiteral("spYear"))->setValue(27);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(edit.msecsSinceEpoch(), utc(2027, 4, 5, 6, 7, 8));
        edit.findChild<QComboBox*>(QStringLiteral("cbxTimeZone"))->setCurrentText(QStringLiteral("C"));
        QCOMPARE(edit.msecsSinceEpoch(), utc(2027, 4, 5, 6, 7, 8));
        QCOMPARE(edit.findChild<QSpinBox*>(QStringLiteral("spHour"))->value(), 9);
        auto* month = edit.findChild<QComboBox*>(QStringLiteral("cbxMonth"));
        edit.setMinMaxMonth(3, 5);
        QCOMPARE(month->count(), 3);
        QCOMPARE(month->currentData().toInt(), 4);
        edit.setMinMaxMonth(6, 7);
        QCOMPARE(month->itemData(0).toInt(), 6);
        QVERIFY(edit.setMsecsSinceEpoch(0, true));
        QVERIFY(!edit.findChild<QSpinBox*>(QStringLiteral("spDay"))->isEnabled());
    }

    void propertiesAndTranslation()
    {
        OrvDateTimeEdit edit(nullptr, true);
        QVERIFY(edit.setProperty("readOnly", true));
        QVERIFY(field(edit, "leLongYear")->isReadOnly());
        QVERIFY(edit.setProperty("editTimezone", false));
        QVERIFY(!field(edit, "leLongTZ")->isEnabled());
        struct German : QTranslator
        {
            QString translate(const char* context, const char* source, const char*, int) const override
            {
                return qstrcmp(context, "OrvDateTimeEdit") == 0 && qstrcmp(source, "Now") == 0
                         ? QStringLiteral("Jetzt") : QString();
            }
            bool isEmpty() const override { return false; }
        } german;
        QCoreApplication::installTranslator(&german);
        QTRY_COMPARE(edit.findChild<QPushButton*>(QStringLiteral("pbNow"))->text(), QStringLiteral("Jetzt"));
        QCoreApplication::removeTranslator(&german);
        QTRY_COMPARE(edit.findChild<QPushButton*>(QStringLiteral("pbNow"))->text(), QStringLiteral("Now"));
    }
};

QTEST_MAIN(TestOrvDateTimeEdit)
#include "tst_orv_date_time_edit.moc"
