#include <orv_angle_edit.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QtTest>

using namespace OrvWidgets;
using Unit = OrvAngleEdit::AngleUnitType;

class TestOrvAngleEdit : public QObject
{
    Q_OBJECT

    static QStringList comboTexts(const OrvAngleEdit& edit)
    {
        const auto* combo = edit.findChild<QComboBox*>(QStringLiteral("cBoxAngleUnit"));
        QStringList texts;
        for (int i = 0; combo && i < combo->count(); ++i)
            texts << combo->itemText(i);
        return texts;
    }

private Q_SLOTS:
    void conversions_data()
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
    void conversions()
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

    void unitSwitch_data()
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
    void unitSwitch()
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

    void units()
    {
        OrvAngleEdit edit;
        QCOMPARE(comboTexts(edit), QStringList());
        edit.initAngleEditWidget(2);
        QCOMPARE(comboTexts(edit), (QStringList{"Degree", "Mil"}));
        edit.showUnits({OrvAngleEdit::Rad});
        QCOMPARE(comboTexts(edit), (QStringList{"Degree", "Mil", "Radian"}));
        edit.hideUnits({OrvAngleEdit::Mil});
        QCOMPARE(comboTexts(edit), (QStringList{"Degree", "Radian"}));

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
};

QTEST_MAIN(TestOrvAngleEdit)
#include "tst_orv_angle_edit.moc"
