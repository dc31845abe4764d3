#include <orv_angle_edit.h>
#include <orv_bitfield_widget.h>
#include <orv_double_spin_box.h>
#include <orv_msec_date_time_edit.h>
#include <orv_multi_range_spin_box.h>
#include <orv_spin_box.h>

#include <QtTest>
#include <QtWidgets>

#include <ctime>

using namespace OrvWidgets;
using Ranges = QVector<std::pair<int, int>>;
using Doubles = QVector<double>;
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

    // One input on a spin box: typed text is rounded to the grid when the box is left; steps keep to the
    // grid, skip excluded holes and jump between allowed ranges.
    void spinInput_data()
    {
        QTest::addColumn<int>("kind"); // OrvSpinBox with holes, OrvDoubleSpinBox (one decimal), OrvMultiRangeSpinBox
        QTest::addColumn<Doubles>("config"); // minimum, maximum, single step, start value
        QTest::addColumn<Ranges>("ranges"); // holes or allowed ranges
        QTest::addColumn<QString>("input"); // a key, Wheel, or text typed before Tab
        QTest::addColumn<double>("expected");
        const Ranges none, hole{{3, 9}}, two{{1, 10}, {20, 30}};
        QTest::newRow("8 rounds up") << 0 << Doubles{0, 99, 5, 0} << none << "8" << 10.0;
        QTest::newRow("half step rounds down") << 0 << Doubles{0, 99, 4, 0} << none << "6" << 4.0;
        QTest::newRow("not above max") << 0 << Doubles{0, 9, 5, 0} << none << "8" << 5.0;
        QTest::newRow("on grid") << 0 << Doubles{0, 99, 5, 0} << none << "45" << 45.0;
        QTest::newRow("grid from 3") << 0 << Doubles{3, 99, 5, 3} << none << "10" << 8.0;
        QTest::newRow("too long, box keeps value") << 0 << Doubles{0, 50, 5, 0} << none << "700" << 0.0;
        QTest::newRow("up over hole") << 0 << Doubles{0, 20, 1, 2} << hole << "Up" << 10.0;
        QTest::newRow("down over hole") << 0 << Doubles{0, 20, 1, 10} << hole << "Down" << 2.0;
        QTest::newRow("onto grid above hole") << 0 << Doubles{0, 20, 4, 0} << hole << "Up" << 12.0;
        QTest::newRow("last grid point below max") << 0 << Doubles{0, 19, 4, 12} << hole << "PgUp" << 16.0;
        QTest::newRow("from off the grid") << 0 << Doubles{0, 20, 4, 1} << hole << "Up" << 12.0;
        QTest::newRow("0.7 down") << 1 << Doubles{0, 10, 0.5, 0} << none << "0.7" << 0.5;
        QTest::newRow("0.8 above max") << 1 << Doubles{0, 0.9, 0.5, 0} << none << "0.8" << 0.5;
        QTest::newRow("grid from 0.3") << 1 << Doubles{0.3, 10, 0.5, 0.3} << none << "1.3" << 1.3;
        QTest::newRow("tenths") << 1 << Doubles{0, 10, 0.1, 0} << none << "0.3" << 0.3;
        // A step of 10 to the power of the decimals is not rounded: the box keeps its value.
        QTest::newRow("step 10") << 1 << Doubles{0, 100, 10, 0} << none << "15" << 0.0;
        QTest::newRow("tenths up") << 1 << Doubles{0, 10, 0.1, 0.3} << none << "Up" << 0.4;
        QTest::newRow("up from off the grid") << 1 << Doubles{0.3, 10, 0.5, 1.0} << none << "Up" << 1.3;
        QTest::newRow("up at last grid point") << 1 << Doubles{0, 0.9, 0.5, 0.5} << none << "Up" << 0.5;
        QTest::newRow("wheel up at 10") << 2 << Doubles{0, 0, 1, 10} << two << "Wheel" << 20.0;
        QTest::newRow("key down at 20") << 2 << Doubles{0, 0, 1, 20} << two << "Down" << 10.0;
        QTest::newRow("wheel inside") << 2 << Doubles{0, 0, 1, 5} << two << "Wheel" << 6.0;
        QTest::newRow("wheel at top") << 2 << Doubles{0, 0, 1, 30} << two << "Wheel" << 30.0;
        QTest::newRow("step 4 snaps onto grid") << 2 << Doubles{0, 0, 4, 9} << two << "Wheel" << 21.0;
        QTest::newRow("typed gap, nearer low") << 2 << Doubles{0, 0, 1, 1} << two << "14" << 10.0;
        QTest::newRow("typed gap, nearer high") << 2 << Doubles{0, 0, 1, 1} << two << "17" << 20.0;
        QTest::newRow("typed in range") << 2 << Doubles{0, 0, 1, 1} << two << "25" << 25.0;
    }
    void spinInput()
    {
        QFETCH(int, kind);
        QFETCH(Doubles, config);
        QFETCH(Ranges, ranges);
        QFETCH(QString, input);
        QFETCH(double, expected);
        QAbstractSpinBox* box = kind == 0 ? m_spin : kind == 1 ? static_cast<QAbstractSpinBox*>(m_double) : m_multi;
        m_double->setDecimals(1);
        QVERIFY(m_spin->setExclusionRanges({}));
        if (kind == 2)
            m_multi->setRanges(ranges);
        else
            QVERIFY(box->setProperty("minimum", config[0]) && box->setProperty("maximum", config[1]));
        QVERIFY(kind != 0 || m_spin->setExclusionRanges(ranges));
        QVERIFY(box->setProperty("singleStep", config[2]) && box->setProperty("value", config[3]));
        box->setFocus();
        if (input == QLatin1String("Wheel"))
            wheel(box, 1);
        else if (input.at(0).isLetter())
            QTest::keySequence(box, QKeySequence(input));
        else
            typeAndLeave(box, input);
        QCOMPARE(box->property("value").toDouble(), expected);
        QCOMPARE(box->text(), QString::number(expected, 'f', kind == 1));
    }

    void spinBoxExclusions_data()
    {
        QTest::addColumn<Ranges>("ranges");
        QTest::addColumn<Ranges>("stored"); // empty: refused
        QTest::newRow("reversed pair") << Ranges{{9, 3}} << Ranges{{3, 9}};
        QTest::newRow("sorted") << Ranges{{12, 14}, {3, 5}} << Ranges{{3, 5}, {12, 14}};
        QTest::newRow("touching") << Ranges{{3, 5}, {5, 8}} << Ranges{};
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

    void multiRangeToolTip()
    {
        OrvMultiRangeSpinBox box;
        box.setRanges({{20, 30}, {1, 10}});
        QCOMPARE(box.toolTip(), QStringLiteral("Ranges:\n1-10,\n20-30"));
        box.setSuffix(QStringLiteral(" m"));
        box.setMinimum(2);
        QCOMPARE(box.toolTip(), QStringLiteral("Ranges:\n2-10 m,\n20-30 m"));
    }

    void angleConversions()
    {
        // Minus five quarter turns in each unit, converted to every unit: nothing is wrapped.
        const Unit units[] = {OrvAngleEdit::Deg, OrvAngleEdit::Mil, OrvAngleEdit::Rad};
        const double turns[] = {-450.0, -8000.0, -2.5 * 3.141592653589793};
        OrvAngleEdit edit;
        for (int from = 0; from < 3; ++from) {
            for (int to = 0; to < 3; ++to)
                QCOMPARE(edit.getAngleConverted(turns[from], units[to], units[from]), turns[to]);
        }
    }

    void angleUnitSwitch_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<Unit>("unit");
        QTest::addColumn<double>("shown");
        QTest::addColumn<int>("decimals");
        QTest::newRow("360 deg as mil") << 360.0 << OrvAngleEdit::Mil << 6400.0 << 0;
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
        edit.setMsecsSinceEpoch(msecs);
        for (int hours = -12; hours <= 14; ++hours) {
            edit.setTimezoneHoursOffset(hours); // the fields move, the instant stays
            QCOMPARE(edit.msecsSinceEpoch(), msecs);
            const QDateTime wall = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC).addSecs(hours * 3600);
            QCOMPARE(edit.dateTime().date(), wall.date());
            QCOMPARE(edit.dateTime().time(), wall.time());
            // A date-time in any zone is taken by its instant.
            edit.setDateTime(QDateTime::fromMSecsSinceEpoch(msecs + 1, Qt::LocalTime));
            QCOMPARE(edit.msecsSinceEpoch(), msecs + 1);
            edit.setMsecsSinceEpoch(msecs);
        }
    }

    void msecConstruction()
    {
        OrvMSecDateTimeEdit edit(QDateTime(QDate(2026, 5, 4), QTime(3, 2, 1), Qt::UTC));
        edit.setLocale(QLocale::c());
        QCOMPARE(edit.text(), QStringLiteral("04.05.26 03:02:01.000"));
        edit.setTimezoneHoursOffset(-4);
        QCOMPARE(edit.text(), QStringLiteral("03.05.26 23:02:01.000"));
        // A time-only start still allows every date.
        OrvMSecDateTimeEdit fromTime(QTime(13, 14, 15, 160));
        fromTime.setCurrentSection(QDateTimeEdit::DaySection);
        fromTime.stepBy(1);
        QCOMPARE(fromTime.dateTime(), QDateTime(QDate(2000, 1, 2), QTime(13, 14, 15, 160), Qt::UTC));
    }

    // Typed digits are rounded to the step when the edit is left; step keys carry into the higher sections.
    void msecKeys_data()
    {
        QTest::addColumn<int>("section");
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("keys"); // digits are typed, then Tab
        QTest::addColumn<QString>("shown");
        const int second = QDateTimeEdit::SecondSection, minute = QDateTimeEdit::MinuteSection;
        QTest::newRow("12.345 up") << second << 10 << "12345" << "31.12.26 23:59:12.350";
        QTest::newRow("12.344 down") << second << 10 << "12344" << "31.12.26 23:59:12.340";
        QTest::newRow("step 250 carries") << second << 250 << "59876" << "01.01.27 00:00:00.000";
        QTest::newRow("second up to next day") << second << 10 << "Up" << "01.01.27 00:00:00.500";
        QTest::newRow("msec by step") << int(QDateTimeEdit::MSecSection) << 10 << "Up" << "31.12.26 23:59:59.510";
        QTest::newRow("minute page down") << minute << 10 << "PgDown" << "31.12.26 23:49:59.500";
        QTest::newRow("month up") << int(QDateTimeEdit::MonthSection) << 10 << "Up" << "31.01.27 23:59:59.500";
        QTest::newRow("year down") << int(QDateTimeEdit::YearSection) << 10 << "Down" << "31.12.25 23:59:59.500";
    }
    void msecKeys()
    {
        QFETCH(int, section);
        QFETCH(int, step);
        QFETCH(QString, keys);
        QFETCH(QString, shown);
        m_msec->setMsecStepSize(step);
        m_msec->setTimezoneHoursOffset(-5);
        m_msec->setMsecsSinceEpoch(utc("2027-01-01T04:59:59.500Z"));
        m_msec->setFocus();
        m_msec->setSelectedSection(QDateTimeEdit::Section(section));
        const bool typed = keys.at(0).isDigit();
        if (typed) // a full section moves on to the next; Tab from the last one leaves the edit
            QTest::keyClicks(m_msec, keys + QLatin1Char('\t'));
        else
            QTest::keySequence(m_msec, QKeySequence(keys));
        QCOMPARE(m_msec->hasFocus(), !typed);
        QCOMPARE(m_msec->text(), shown);
        QCOMPARE(m_msec->msecsSinceEpoch() % step, qint64(0));
        if (!typed)
            QCOMPARE(m_msec->currentSection(), QDateTimeEdit::Section(section));
    }

    void bitfieldCells()
    {
        OrvBitfieldWidget widget(nullptr, 0xC5); // not a palindrome: the bit order shows
        widget.setHasCaption(false);
        widget.setOnColor(Qt::red);
        widget.resize(80, 20);
        for (const qreal ratio : {1.0, 2.0}) {
            QPixmap pixmap(QSize(80, 20) * ratio);
            pixmap.setDevicePixelRatio(ratio);
            pixmap.fill(Qt::green);
            widget.render(&pixmap);
            const QImage image = pixmap.toImage();
            for (int i = 0; i < 8; ++i)
                QCOMPARE(image.pixelColor(int((10 * i + 5) * ratio), int(10 * ratio)),
                         QColor((0xC5 & (0x80 >> i)) ? Qt::red : Qt::white));
        }
    }

    void bitfieldClicks_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("toggled");
        QTest::newRow("boundary 10") << 10 << 0;
        QTest::newRow("cell 0") << 5 << 0x80;
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
