#include <orv_angle_edit.h>
#include <orv_bitfield_widget.h>
#include <orv_double_spin_box.h>
#include <orv_msec_date_time_edit.h>
#include <orv_multi_range_spin_box.h>
#include <orv_spin_box.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

#include <ctime>

using namespace OrvWidgets;
using Ranges = QVector<std::pair<int, int>>;
using Ints = QVector<int>;
using Unit = OrvAngleEdit::AngleUnitType;

namespace {
// Types into a focused box and leaves it with Tab, as a user does.
void typeAndLeave(QAbstractSpinBox* box, const QString& text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Tab);
}

void wheel(QWidget* w, int notches)
{
    QWheelEvent event(QPointF(5, 5), w->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120 * notches),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(w, &event);
}

qint64 utc(const char* iso)
{
    return QDateTime::fromString(QString::fromLatin1(iso), Qt::ISODateWithMs).toMSecsSinceEpoch();
}

QStringList unitTexts(const OrvAngleEdit& edit)
{
    const auto* combo = edit.findChild<QComboBox*>(QStringLiteral("cBoxAngleUnit"));
    QStringList texts;
    for (int i = 0; combo && i < combo->count(); ++i)
        texts << combo->itemText(i);
    return texts;
}
} // namespace

// The spin boxes, the angle, millisecond date-time and bit field editors.
class TestValueEditors : public QObject
{
    Q_OBJECT
    QWidget m_window;
    OrvSpinBox* m_spin = new OrvSpinBox;
    OrvDoubleSpinBox* m_double = new OrvDoubleSpinBox;
    OrvMultiRangeSpinBox* m_multi = new OrvMultiRangeSpinBox;
    OrvMSecDateTimeEdit* m_msec = new OrvMSecDateTimeEdit;

    // Puts the date-time edit at an instant, focuses it and makes `section` the current one.
    void start(int hours, const char* iso, QDateTimeEdit::Section section)
    {
        m_msec->setTimezoneHoursOffset(hours);
        m_msec->setMsecsSinceEpoch(utc(iso));
        m_msec->setFocus();
        m_msec->setSelectedSection(section);
    }

private Q_SLOTS:
    void initTestCase()
    {
        // A machine zone with daylight-saving changes must not disturb the shown fields.
        qputenv("TZ", "Europe/Berlin");
        tzset();
        auto* layout = new QVBoxLayout(&m_window);
        for (QAbstractSpinBox* box : std::initializer_list<QAbstractSpinBox*>{m_spin, m_double, m_multi, m_msec}) {
            box->setLocale(QLocale::c());
            layout->addWidget(box);
        }
        layout->addWidget(new QLineEdit);
        m_window.show();
        m_window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
    }

    void spinBoxGridTyping_data()
    {
        // config: minimum, maximum, single step
        QTest::addColumn<Ints>("config");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("value");
        const int intermediate = QValidator::Intermediate;
        QTest::newRow("7 rounds down") << Ints{0, 99, 5} << "7" << intermediate << 5;
        QTest::newRow("8 rounds up") << Ints{0, 99, 5} << "8" << intermediate << 10;
        QTest::newRow("8 with max 9") << Ints{0, 9, 5} << "8" << intermediate << 5;
        QTest::newRow("on grid") << Ints{0, 99, 5} << "45" << int(QValidator::Acceptable) << 45;
        QTest::newRow("grid from 3") << Ints{3, 99, 5} << "10" << intermediate << 8;
        QTest::newRow("half step rounds down") << Ints{0, 99, 4} << "6" << intermediate << 4;
        QTest::newRow("negative") << Ints{-10, 10, 5} << "-3" << intermediate << -5;
        QTest::newRow("too long, box keeps value") << Ints{0, 50, 5} << "700" << int(QValidator::Invalid) << 0;
    }
    void spinBoxGridTyping()
    {
        QFETCH(Ints, config);
        QFETCH(QString, typed);
        QFETCH(int, state);
        QFETCH(int, value);
        m_spin->setRange(config[0], config[1]);
        m_spin->setSingleStep(config[2]);
        m_spin->setValue(config[0]);
        int pos = 0;
        QCOMPARE(int(m_spin->validate(typed, pos)), state);
        typeAndLeave(m_spin, typed);
        QCOMPARE(m_spin->value(), value);
        QCOMPARE(m_spin->text(), QString::number(value));
    }

    void spinBoxExclusions_data()
    {
        QTest::addColumn<Ranges>("ranges");
        QTest::addColumn<Ranges>("stored"); // empty: refused
        QTest::newRow("reversed pair") << Ranges{{9, 3}} << Ranges{{3, 9}};
        QTest::newRow("sorted") << Ranges{{12, 14}, {3, 5}} << Ranges{{3, 5}, {12, 14}};
        QTest::newRow("touching") << Ranges{{3, 5}, {5, 8}} << Ranges{};
        QTest::newRow("overlapping") << Ranges{{3, 6}, {5, 8}} << Ranges{};
        QTest::newRow("at minimum") << Ranges{{0, 4}} << Ranges{};
        QTest::newRow("at maximum") << Ranges{{15, 20}} << Ranges{};
    }
    void spinBoxExclusions()
    {
        QFETCH(Ranges, ranges);
        QFETCH(Ranges, stored);
        OrvSpinBox box;
        box.setRange(0, 20);
        QVERIFY(box.setExclusionRanges({{10, 11}}));
        QCOMPARE(box.setExclusionRanges(ranges), !stored.isEmpty());
        QCOMPARE(box.exclusionRanges(), stored);
        // Appending keeps the present holes, also when the new one is refused.
        QVERIFY(box.setExclusionRanges({{17, 18}}));
        QCOMPARE(box.setExclusionRanges(ranges, true), !stored.isEmpty());
        QCOMPARE(box.exclusionRanges().size(), stored.size() + 1);
        QCOMPARE(box.addExclusionRange(1, 0), false);
    }

    void spinBoxSteppingSkipsHoles_data()
    {
        // config: maximum, single step, start value, key; hole (3, 9)
        QTest::addColumn<Ints>("config");
        QTest::addColumn<int>("expected");
        QTest::newRow("up over hole") << Ints{20, 1, 2, Qt::Key_Up} << 10;
        QTest::newRow("down over hole") << Ints{20, 1, 10, Qt::Key_Down} << 2;
        QTest::newRow("onto grid above hole") << Ints{20, 4, 0, Qt::Key_Up} << 12;
        QTest::newRow("last grid point below max") << Ints{19, 4, 12, Qt::Key_PageUp} << 16;
        QTest::newRow("from off the grid") << Ints{20, 4, 1, Qt::Key_Up} << 12;
    }
    void spinBoxSteppingSkipsHoles()
    {
        QFETCH(Ints, config);
        QFETCH(int, expected);
        m_spin->setRange(0, config[0]);
        m_spin->setSingleStep(config[1]);
        QVERIFY(m_spin->setExclusionRanges({{3, 9}}));
        m_spin->setValue(config[2]);
        m_spin->setFocus();
        QTest::keyClick(m_spin, Qt::Key(config[3]));
        QCOMPARE(m_spin->value(), expected);
        QVERIFY(m_spin->setExclusionRanges({}));
    }

    void doubleGrid_data()
    {
        // config: minimum, maximum, single step; one decimal
        QTest::addColumn<QVector<double>>("config");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("value");
        QTest::newRow("0.7 down") << QVector<double>{0, 10, 0.5} << "0.7" << 0.5;
        QTest::newRow("0.8 up") << QVector<double>{0, 10, 0.5} << "0.8" << 1.0;
        QTest::newRow("above max") << QVector<double>{0, 0.9, 0.5} << "0.8" << 0.5;
        QTest::newRow("grid from 0.3") << QVector<double>{0.3, 10, 0.5} << "1.3" << 1.3;
        QTest::newRow("tenths") << QVector<double>{0, 10, 0.1} << "0.3" << 0.3;
        // A step of 10 to the power of the decimals is not rounded: the box keeps its value.
        QTest::newRow("step 10") << QVector<double>{0, 100, 10} << "15" << 0.0;
    }
    void doubleGrid()
    {
        QFETCH(QVector<double>, config);
        QFETCH(QString, typed);
        QFETCH(double, value);
        m_double->setDecimals(1);
        m_double->setRange(config[0], config[1]);
        m_double->setSingleStep(config[2]);
        m_double->setValue(config[0]);
        typeAndLeave(m_double, typed);
        QCOMPARE(m_double->value(), value);
        QCOMPARE(m_double->text(), QString::number(value, 'f', 1));
        QTest::keyClick(m_double, Qt::Key_Up);
        QCOMPARE(m_double->value(), std::min(value + config[2], config[1] - std::fmod(config[1] - config[0], config[2])));
    }

    void multiRangeMerging_data()
    {
        QTest::addColumn<Ranges>("ranges");
        QTest::addColumn<Ranges>("merged");
        QTest::newRow("touching stay two") << Ranges{{1, 5}, {5, 9}} << Ranges{{1, 5}, {5, 9}};
        QTest::newRow("overlap merges") << Ranges{{1, 6}, {5, 9}} << Ranges{{1, 9}};
        QTest::newRow("unsorted") << Ranges{{20, 30}, {1, 10}} << Ranges{{1, 10}, {20, 30}};
        QTest::newRow("nested and chained") << Ranges{{1, 6}, {2, 3}, {5, 12}, {11, 15}} << Ranges{{1, 15}};
    }
    void multiRangeMerging()
    {
        QFETCH(Ranges, ranges);
        QFETCH(Ranges, merged);
        OrvMultiRangeSpinBox box;
        box.setRanges(ranges);
        box.setRanges({});
        QCOMPARE(box.ranges(), merged);
        QCOMPARE(box.minimum(), merged.first().first);
        QCOMPARE(box.maximum(), merged.last().second);
    }

    void multiRangeJumps_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("start");
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("expected");
        QTest::newRow("wheel up at 10") << 1 << 10 << "wheel+" << 20;
        QTest::newRow("wheel down at 20") << 1 << 20 << "wheel-" << 10;
        QTest::newRow("key up at 10") << 1 << 10 << "up" << 20;
        QTest::newRow("key down at 20") << 1 << 20 << "down" << 10;
        QTest::newRow("wheel inside") << 1 << 5 << "wheel+" << 6;
        QTest::newRow("wheel at top") << 1 << 30 << "wheel+" << 30;
        QTest::newRow("step 4 snaps onto grid") << 4 << 9 << "wheel+" << 21;
        QTest::newRow("typed gap, nearer low") << 1 << 1 << "14" << 10;
        QTest::newRow("typed gap, nearer high") << 1 << 1 << "17" << 20;
        QTest::newRow("typed in range") << 1 << 1 << "25" << 25;
    }
    void multiRangeJumps()
    {
        QFETCH(int, step);
        QFETCH(int, start);
        QFETCH(QString, action);
        QFETCH(int, expected);
        m_multi->setRanges({{1, 10}, {20, 30}});
        m_multi->setSingleStep(step);
        m_multi->setValue(start);
        m_multi->setFocus();
        if (action.startsWith(QLatin1String("wheel")))
            wheel(m_multi, action.endsWith(QLatin1Char('+')) ? 1 : -1);
        else if (action == QLatin1String("up") || action == QLatin1String("down"))
            QTest::keyClick(m_multi, action == QLatin1String("up") ? Qt::Key_Up : Qt::Key_Down);
        else
            typeAndLeave(m_multi, action);
        QCOMPARE(m_multi->value(), expected);
    }

    void multiRangeToolTip()
    {
        OrvMultiRangeSpinBox box;
        box.setRanges({{20, 30}, {1, 10}});
        QCOMPARE(box.toolTip(), QStringLiteral("Ranges:\n1-10,\n20-30"));
        box.setSuffix(QStringLiteral(" m"));
        box.setMinimum(2);
        QCOMPARE(box.toolTip(), QStringLiteral("Ranges:\n2-10 m,\n20-30 m"));
    }

    void angleConversions_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<Unit>("from");
        QTest::addColumn<Unit>("to");
        QTest::addColumn<double>("expected");
        const double halfPi = 3.141592653589793 / 2;
        QTest::newRow("360 deg in mil") << 360.0 << OrvAngleEdit::Deg << OrvAngleEdit::Mil << 6400.0;
        QTest::newRow("90 deg in mil") << 90.0 << OrvAngleEdit::Deg << OrvAngleEdit::Mil << 1600.0;
        QTest::newRow("90 deg in rad") << 90.0 << OrvAngleEdit::Deg << OrvAngleEdit::Rad << halfPi;
        QTest::newRow("3200 mil in deg") << 3200.0 << OrvAngleEdit::Mil << OrvAngleEdit::Deg << 180.0;
        QTest::newRow("1600 mil in rad") << 1600.0 << OrvAngleEdit::Mil << OrvAngleEdit::Rad << halfPi;
        QTest::newRow("pi/2 rad in deg") << halfPi << OrvAngleEdit::Rad << OrvAngleEdit::Deg << 90.0;
        QTest::newRow("pi/2 rad in mil") << halfPi << OrvAngleEdit::Rad << OrvAngleEdit::Mil << 1600.0;
        QTest::newRow("negative, not wrapped") << -720.0 << OrvAngleEdit::Deg << OrvAngleEdit::Mil << -12800.0;
        QTest::newRow("same unit") << 12.5 << OrvAngleEdit::Mil << OrvAngleEdit::Mil << 12.5;
    }
    void angleConversions()
    {
        QFETCH(double, value);
        QFETCH(Unit, from);
        QFETCH(Unit, to);
        QFETCH(double, expected);
        OrvAngleEdit edit;
        QCOMPARE(edit.getAngleConverted(value, to, from), expected);
        // There and back again through degrees.
        QVERIFY(qAbs(edit.getAngleConverted(expected, from, to) - value) < 1e-9);
    }

    void angleUnitSwitch_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<Unit>("unit");
        QTest::addColumn<double>("shown");
        QTest::addColumn<int>("decimals");
        QTest::newRow("360 deg as mil") << 360.0 << OrvAngleEdit::Mil << 6400.0 << 0;
        QTest::newRow("90 deg as mil") << 90.0 << OrvAngleEdit::Mil << 1600.0 << 0;
        QTest::newRow("10 deg rounds to whole mils") << 10.0 << OrvAngleEdit::Mil << 178.0 << 0;
        QTest::newRow("90 deg as rad, three decimals") << 90.0 << OrvAngleEdit::Rad << 1.571 << 3;
        QTest::newRow("400 deg clamped") << 400.0 << OrvAngleEdit::Mil << 6400.0 << 0;
    }
    void angleUnitSwitch()
    {
        QFETCH(double, degrees);
        QFETCH(Unit, unit);
        QFETCH(double, shown);
        QFETCH(int, decimals);
        OrvAngleEdit edit;
        edit.initAngleEditWidget(2);
        edit.showUnits({OrvAngleEdit::Rad});
        edit.setValue(degrees, 0);
        edit.setValue(degrees, OrvAngleEdit::Deg, 1);
        edit.setAngleUnit(unit);
        for (unsigned int i = 0; i < 2; ++i) {
            auto* box = edit.findChild<QDoubleSpinBox*>(QStringLiteral("sboxAngleValue%1").arg(i));
            QVERIFY(box);
            QCOMPARE(edit.getAngle(i), shown);
            QCOMPARE(box->decimals(), decimals);
        }
        // A value given in another unit lands converted in the shown one.
        edit.setValue(45.0, OrvAngleEdit::Deg);
        QCOMPARE(edit.getAngle(0), QString::number(edit.getAngleConverted(45.0, unit, OrvAngleEdit::Deg), 'f', decimals).toDouble());
    }

    void angleUnits()
    {
        OrvAngleEdit edit;
        QCOMPARE(unitTexts(edit), QStringList());
        edit.initAngleEditWidget(2);
        QCOMPARE(unitTexts(edit), (QStringList{"Degree", "Mil"}));
        edit.showUnits({OrvAngleEdit::Rad});
        QCOMPARE(unitTexts(edit), (QStringList{"Degree", "Mil", "Radian"}));
        edit.hideUnits({OrvAngleEdit::Mil});
        QCOMPARE(unitTexts(edit), (QStringList{"Degree", "Radian"}));

        // Boxes beyond the last one do not exist: reads give 0.0, writes do nothing.
        edit.setValue(30.0, 2);
        edit.setEnable(2, false);
        edit.showSpinbox(-1, false);
        QCOMPARE(edit.getAngle(2), 0.0);
        QCOMPARE(edit.getAngle(7), 0.0);

        // Stepping a box follows the unit's single step.
        auto* box = edit.findChild<QDoubleSpinBox*>(QStringLiteral("sboxAngleValue1"));
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(edit.getAngle(1), 10.0);
    }

    void msecRoundTrip_data()
    {
        QTest::addColumn<qint64>("msecs");
        QTest::newRow("epoch") << qint64(0);
        QTest::newRow("before epoch") << qint64(-86399999);
        QTest::newRow("spring gap in Berlin") << utc("2026-03-29T01:30:00.010Z");
        QTest::newRow("autumn overlap in Berlin") << utc("2026-10-25T00:30:00.990Z");
        QTest::newRow("leap day") << utc("2024-02-29T23:59:59.999Z");
    }
    void msecRoundTrip()
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

    void msecOffsetMovesFieldsNotInstant()
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

    void msecRoundingWhenLeft_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("shown");
        QTest::newRow("12.345 up") << "12345" << 10 << "12.350";
        QTest::newRow("12.344 down") << "12344" << 10 << "12.340";
        QTest::newRow("step 250 carries") << "59876" << 250 << "00.000";
        QTest::newRow("step 1") << "59876" << 1 << "59.876";
    }
    void msecRoundingWhenLeft()
    {
        QFETCH(QString, typed);
        QFETCH(int, step);
        QFETCH(QString, shown);
        m_msec->setMsecStepSize(step);
        start(1, "2026-11-21T09:59:00.000Z", QDateTimeEdit::SecondSection);
        // A full section moves on to the next; Tab from the last one leaves the edit.
        QTest::keyClicks(m_msec, typed);
        QTest::keyClick(m_msec, Qt::Key_Tab);
        QVERIFY(!m_msec->hasFocus());
        QCOMPARE(m_msec->text().mid(15), shown);
        QCOMPARE(m_msec->msecsSinceEpoch() % step, qint64(0));
    }

    void msecSteppingCarries_data()
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
    void msecSteppingCarries()
    {
        QFETCH(int, section);
        QFETCH(int, key);
        QFETCH(QString, shown);
        m_msec->setMsecStepSize(10);
        start(-5, "2027-01-01T04:59:59.500Z", QDateTimeEdit::Section(section));
        QTest::keyClick(m_msec, Qt::Key(key));
        QCOMPARE(m_msec->text(), shown);
        QCOMPARE(m_msec->currentSection(), QDateTimeEdit::Section(section));
    }

    void bitfieldCells_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<qreal>("ratio");
        for (const qreal ratio : {1.0, 2.0}) {
            QTest::addRow("0x80 @%g", ratio) << 0x80 << ratio;
            QTest::addRow("0x01 @%g", ratio) << 0x01 << ratio;
            QTest::addRow("0xA5 @%g", ratio) << 0xA5 << ratio;
        }
    }
    void bitfieldCells()
    {
        QFETCH(int, value);
        QFETCH(qreal, ratio);
        OrvBitfieldWidget widget(nullptr, quint8(value));
        widget.setHasCaption(false);
        widget.setOnColor(Qt::red);
        widget.resize(80, 20);
        QPixmap pixmap(QSize(80, 20) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::green);
        widget.render(&pixmap);
        const QImage image = pixmap.toImage();
        for (int i = 0; i < 8; ++i) {
            const QColor expected = (value & (0x80 >> i)) ? Qt::red : Qt::white;
            QCOMPARE(image.pixelColor(int((10 * i + 5) * ratio), int(10 * ratio)), expected);
        }
    }

    void bitfieldClicks_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("toggled");
        QTest::newRow("boundary 10") << 10 << 0;
        QTest::newRow("left edge") << 0 << 0;
        QTest::newRow("cell 0") << 5 << 0x80;
        QTest::newRow("cell 1") << 15 << 0x40;
        QTest::newRow("cell 7") << 75 << 0x01;
        QTest::newRow("rest right of the cells") << 82 << 0;
    }
    void bitfieldClicks()
    {
        QFETCH(int, x);
        QFETCH(int, toggled);
        OrvBitfieldWidget widget(nullptr, 0x0F);
        widget.resize(x == 82 ? 85 : 80, 20);
        QSignalSpy changed(&widget, &OrvBitfieldWidget::valueChanged);
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(x, 10));
        QCOMPARE(int(widget.value()), 0x0F ^ toggled);
        QCOMPARE(changed.size(), toggled ? 1 : 0);
        if (toggled) {
            QCOMPARE(changed.first().first().value<quint8>(), quint8(0x0F ^ toggled));
            QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(x, 10));
            QCOMPARE(changed.last().first().value<quint8>(), quint8(0x0F));
        }
        widget.setEditable(false);
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(x, 10));
        QCOMPARE(int(widget.value()), 0x0F);
    }

    void bitfieldSettersEmitOnChangeOnly()
    {
        OrvBitfieldWidget widget(nullptr, 0x12);
        QSignalSpy value(&widget, &OrvBitfieldWidget::valueChanged);
        QSignalSpy editable(&widget, &OrvBitfieldWidget::isEditableChanged);
        QSignalSpy caption(&widget, &OrvBitfieldWidget::hasCaptionChanged);
        for (int round = 0; round < 2; ++round) { // the second round changes nothing
            QVERIFY(widget.setProperty("value", QVariant::fromValue<quint8>(0x34)));
            QVERIFY(widget.setProperty("editable", false));
            QVERIFY(widget.setProperty("hasCaption", false));
        }
        QCOMPARE(value, QList<QVariantList>{{QVariant::fromValue<quint8>(0x34)}});
        QCOMPARE(editable, QList<QVariantList>{{false}});
        QCOMPARE(caption.size(), 1);
    }

    void bitfieldPaintsAtAnySize()
    {
        // Captions scale with the widget; tiny and empty sizes must not trip the font.
        for (const QSize size : {QSize(0, 0), QSize(3, 1), QSize(400, 30), QSize(40, 200)}) {
            OrvBitfieldWidget widget(nullptr, 0x5A);
            widget.resize(size);
            QVERIFY(!widget.grab().isNull() || size.isEmpty());
        }
    }
};

QTEST_MAIN(TestValueEditors)
#include "tst_value_editors.moc"
