#include <orv_double_spin_box.h>
#include <orv_multi_range_spin_box.h>
#include <orv_spin_box.h>

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

using namespace OrvWidgets;
using Ranges = QVector<std::pair<int, int>>;
using Ints = QVector<int>;

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
} // namespace

class TestOrvSpinBoxes : public QObject
{
    Q_OBJECT
    QWidget m_window;
    OrvSpinBox* m_spin = new OrvSpinBox;
    OrvDoubleSpinBox* m_double = new OrvDoubleSpinBox;
    OrvMultiRangeSpinBox* m_multi = new OrvMultiRangeSpinBox;

private Q_SLOTS:
    void initTestCase()
    {
        auto* layout = new QVBoxLayout(&m_window);
        for (QAbstractSpinBox* box : std::initializer_list<QAbstractSpinBox*>{m_spin, m_double, m_multi}) {
            box->setLocale(QLocale::c());
            layout->addWidget(box);
        }
        layout->addWidget(new QLineEdit);
        m_window.show();
        m_window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
    }

    void gridTyping_data()
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
    void gridTyping()
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

    void exclusions_data()
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
    void exclusions()
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

    void steppingSkipsHoles_data()
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
    void steppingSkipsHoles()
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

    void rangeMerging_data()
    {
        QTest::addColumn<Ranges>("ranges");
        QTest::addColumn<Ranges>("merged");
        QTest::newRow("touching stay two") << Ranges{{1, 5}, {5, 9}} << Ranges{{1, 5}, {5, 9}};
        QTest::newRow("overlap merges") << Ranges{{1, 6}, {5, 9}} << Ranges{{1, 9}};
        QTest::newRow("unsorted") << Ranges{{20, 30}, {1, 10}} << Ranges{{1, 10}, {20, 30}};
        QTest::newRow("nested and chained") << Ranges{{1, 6}, {2, 3}, {5, 12}, {11, 15}} << Ranges{{1, 15}};
    }
    void rangeMerging()
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

    void jumps_data()
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
    void jumps()
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

    void toolTip()
    {
        OrvMultiRangeSpinBox box;
        box.setRanges({{20, 30}, {1, 10}});
        QCOMPARE(box.toolTip(), QStringLiteral("Ranges:\n1-10,\n20-30"));
        box.setSuffix(QStringLiteral(" m"));
        box.setMinimum(2);
        QCOMPARE(box.toolTip(), QStringLiteral("Ranges:\n2-10 m,\n20-30 m"));
    }
};

QTEST_MAIN(TestOrvSpinBoxes)
#include "tst_orv_spin_boxes.moc"
