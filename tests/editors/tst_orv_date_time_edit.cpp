#include <orv_date_time_edit.h>
#include <orv_settings.h>

#include <QtTest>
#include <QtWidgets>

using namespace OrvWidgets;

namespace {
const char* const kFields[] = {"leLongDay", "leLongHHMMSS", "leLongTZ", "leLongMonth", "leLongYear"};

qint64 utc(int y, int mo, int d, int h = 0, int mi = 0, int s = 0)
{
    return QDateTime(QDate(y, mo, d), QTime(h, mi, s), Qt::UTC).toMSecsSinceEpoch();
}
QLineEdit* field(const QWidget& edit, const char* name)
{
    return edit.findChild<QLineEdit*>(QLatin1String(name));
}
// The five field texts, blank-separated.
QString shown(const QWidget& edit)
{
    QStringList texts;
    for (const char* name : kFields)
        texts << field(edit, name)->text();
    return texts.join(QLatin1Char(' '));
}
void setShown(OrvDateTimeEdit& e, const QString& text)
{
    for (int i = 0; i < 5; ++i)
        field(e, kFields[i])->setText(text.section(QLatin1Char(' '), i, i));
}
bool sendWheel(QWidget* target, int delta)
{
    QWheelEvent wheel(QPointF(2, 2), QPointF(2, 2), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &wheel);
    return wheel.isAccepted();
}

// The editor after another field, in an active window: focus moves and shortcuts work.
struct Window
{
    QWidget top;
    OrvDateTimeEdit* edit;
    QLineEdit* after = new QLineEdit(&top);
    explicit Window(bool withNow = false)
        : edit(new OrvDateTimeEdit(&top, withNow))
    {
        auto* layout = new QHBoxLayout(&top);
        layout->addWidget(edit);
        layout->addWidget(after);
        top.show();
        QApplication::setActiveWindow(&top);
        QVERIFY(QTest::qWaitForWindowActive(&top));
    }
};
} // namespace

namespace OrvWidgets {
// Reaches the day setter, which the editor keeps to itself.
struct OrvDateTimeEditTest
{
    static bool setDay(OrvDateTimeEdit& e, int day) { return e.setDay(day); }
};
} // namespace OrvWidgets

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

    void dayOutsideMonthKeepsOld()
    {
        OrvDateTimeEdit edit;
        setShown(edit, QStringLiteral("14 153000 Z FEB 26"));
        QVERIFY(!OrvDateTimeEditTest::setDay(edit, 31));
        QCOMPARE(shown(edit), QStringLiteral("14 153000 Z FEB 26"));
    }

    void fixupHHMMSS_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fixed");
        QTest::newRow("first digit 3") << "3" << "";
        QTest::newRow("hour 25") << "25" << "2";
        QTest::newRow("minute digit 5") << "235" << "235";
        QTest::newRow("minute digit 6") << "236" << "23";
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
        // Only a complete time text steps.
        QVERIFY(!sendWheel(hms, 120));
        QCOMPARE(hms->text(), fixed);
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

    // Keys, wheel and buttons step the unit under the cursor; F2, Shift+F2 and "Now" load configured instants.
    void stepsAndLoads_data()
    {
        QTest::addColumn<QString>("fieldName");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<QString>("input"); // Wheel+ or Wheel-, a key sequence, or a button
        QTest::addColumn<bool>("callback"); // the current time is known
        QTest::addColumn<qint64>("expected");
        const qint64 base = utc(2024, 1, 31, 12, 30, 30), now = utc(2026, 3, 4, 5, 6, 7) + 60000;
        QTest::newRow("hour wheel") << "leLongHHMMSS" << 1 << "Wheel+" << true << base + 3600000;
        QTest::newRow("minute wheel back") << "leLongHHMMSS" << 3 << "Wheel-" << true << base - 60000;
        QTest::newRow("second Up") << "leLongHHMMSS" << 6 << "Up" << true << base + 1000;
        QTest::newRow("minute Ctrl+Up") << "leLongHHMMSS" << 4 << "Ctrl+Up" << true << base + 300000;
        QTest::newRow("day Down") << "leLongDay" << 0 << "Down" << true << base - 86400000;
        QTest::newRow("month wheel clamps day") << "leLongMonth" << 1 << "Wheel+" << true << base + 29 * 86400000LL;
        QTest::newRow("year Down") << "leLongYear" << 2 << "Down" << true << utc(2023, 1, 31, 12, 30, 30);
        QTest::newRow("Shift+F2 fixed") << "leLongDay" << 0 << "Shift+F2" << false << utc(2030, 1, 2, 3, 4, 5);
        QTest::newRow("F2 now plus offset") << "leLongYear" << 0 << "F2" << true << now;
        QTest::newRow("Now button") << "leLongDay" << 0 << "pbNow" << true << now;
        QTest::newRow("F2 without callback") << "leLongDay" << 0 << "F2" << false << base;
    }
    void stepsAndLoads()
    {
        QFETCH(QString, fieldName);
        QFETCH(int, cursor);
        QFETCH(QString, input);
        QFETCH(bool, callback);
        QFETCH(qint64, expected);
        QTemporaryDir dir;
        auto* settings = OrvUtils::OperatorSettings::getInstance();
        settings->setFileName(dir.filePath(QStringLiteral("operator.ini")));
        settings->setValue(QStringLiteral("TimeSettings"), QStringLiteral("FixedTime"), utc(2030, 1, 2, 3, 4, 5));
        settings->setValue(QStringLiteral("TimeSettings"), QStringLiteral("Offset"), 60000);
        Window w(true);
        QVERIFY(w.edit->setMsecsSinceEpoch(utc(2024, 1, 31, 12, 30, 30), true));
        if (callback)
            w.edit->setRetrieveCurrentTimeCallback([] { return utc(2026, 3, 4, 5, 6, 7) + 890; });
        QLineEdit* target = field(*w.edit, fieldName.toLatin1().constData());
        target->setFocus();
        target->setCursorPosition(cursor);
        QSignalSpy changed(w.edit, &OrvDateTimeEdit::dateTimeChanged);
        const bool load = input.contains(QLatin1String("F2")) || input == QLatin1String("pbNow");
        if (input.startsWith(QLatin1String("Wheel")))
            QVERIFY(sendWheel(target, input.endsWith(QLatin1Char('+')) ? 120 : -120));
        else if (input.startsWith(QLatin1String("pb")))
            w.edit->findChild<QPushButton*>(input)->click();
        else
            QTest::keySequence(target, QKeySequence(input));
        QCOMPARE(w.edit->msecsSinceEpoch(), expected);
        if (!load) { // the stepped unit stays selected
            QVERIFY(changed.count() >= 1);
            QVERIFY(target->hasSelectedText());
        }
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
