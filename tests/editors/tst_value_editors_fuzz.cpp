// Randomized operation of the value editors through real key, wheel and focus events.
// Fixed seeds keep failures reproducible.

#include <orv_angle_edit.h>
#include <orv_double_spin_box.h>
#include <orv_msec_date_time_edit.h>
#include <orv_multi_range_spin_box.h>
#include <orv_spin_box.h>

#include <QComboBox>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QVBoxLayout>
#include <QtTest>

#include <cmath>
#include <functional>

using namespace OrvWidgets;
using Ranges = QVector<std::pair<int, int>>;

namespace {
constexpr int kOperations = 20000;

bool inRanges(int value, const Ranges& ranges)
{
    return std::any_of(ranges.cbegin(), ranges.cend(),
                       [value](const auto& r) { return value >= r.first && value <= r.second; });
}

bool onGrid(double value, double minimum, double step)
{
    const double k = (value - minimum) / step;
    return std::fabs(k - std::round(k)) < 1e-6;
}
} // namespace

class TestValueEditorsFuzz : public QObject
{
    Q_OBJECT

    // Drives `editor` (placed beside a plain line edit) with random operations. `check`
    // runs whenever the focus has just left the editor, `always` after every operation.
    void drive(QWidget* editor, quint32 seed, const std::function<void()>& check,
               const std::function<void()>& always = {})
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(editor);
        auto* other = new QLineEdit;
        layout->addWidget(other);
        // The caller owns the editor: hand it back on every way out, failures included.
        const auto release = qScopeGuard([editor] { editor->setParent(nullptr); });
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        editor->setFocus(Qt::TabFocusReason);

        static const QString digits = QStringLiteral("0123456789");
        static const QString letters = QStringLiteral("aZx.-,+e ");
        QRandomGenerator random(seed);
        int focusOuts = 0;
        for (int i = 0; i < kOperations; ++i) {
            QWidget* focus = QApplication::focusWidget();
            if (!focus)
                focus = editor;
            const bool hadFocus = editor == focus || editor->isAncestorOf(focus);
            const int op = random.bounded(100);
            if (op < 35) {
                QTest::keyClick(focus, digits.at(random.bounded(digits.size())).toLatin1());
            } else if (op < 45) {
                QTest::keyClick(focus, letters.at(random.bounded(letters.size())).toLatin1());
            } else if (op < 55) {
                QTest::keyClick(focus, Qt::Key_Backspace);
            } else if (op < 70) {
                QTest::keyClick(focus, random.bounded(2) ? Qt::Key_Up : Qt::Key_Down);
            } else if (op < 85) {
                QWidget* target = focus == other ? editor : focus;
                QWheelEvent wheel(QPointF(2, 2), target->mapToGlobal(QPointF(2, 2)), QPoint(),
                                  QPoint(0, random.bounded(2) ? 120 : -120), Qt::NoButton, Qt::NoModifier,
                                  Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(target, &wheel);
            } else if (op < 92) {
                QTest::keyClick(focus, Qt::Key_Tab);
            } else if (op < 98) {
                QTest::keyClick(focus, Qt::Key_Backtab, Qt::ShiftModifier);
            } else {
                (hadFocus ? static_cast<QWidget*>(other) : editor)->setFocus(Qt::MouseFocusReason);
            }
            QWidget* now = QApplication::focusWidget();
            if (hadFocus && now != editor && !editor->isAncestorOf(now)) {
                ++focusOuts;
                check();
            }
            if (always)
                always();
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QStringLiteral("seed %1, operation %2").arg(seed).arg(i)));
            if (i % 1000 == 0)
                QCoreApplication::processEvents();
        }
        QVERIFY2(focusOuts > 100, qPrintable(QString::number(focusOuts)));
    }

private Q_SLOTS:
    void spinBox_data()
    {
        QTest::addColumn<quint32>("seed");
        QTest::addColumn<Ranges>("exclusions");
        QTest::newRow("grid") << 1u << Ranges{};
        QTest::newRow("grid with holes") << 2u << Ranges{{10, 20}, {40, 45}};
    }
    void spinBox()
    {
        QFETCH(quint32, seed);
        QFETCH(Ranges, exclusions);
        OrvSpinBox box;
        box.setLocale(QLocale::c());
        box.setRange(-20, 103);
        box.setSingleStep(exclusions.isEmpty() ? 5 : 3);
        box.setValue(-20);
        QVERIFY(box.setExclusionRanges(exclusions));
        drive(&box, seed, [&] {
            QVERIFY2(box.value() >= -20 && box.value() <= 103, qPrintable(box.text()));
            QVERIFY2((box.value() + 20) % box.singleStep() == 0, qPrintable(box.text()));
            QVERIFY2(!inRanges(box.value(), exclusions), qPrintable(box.text()));
            QCOMPARE(box.text(), QString::number(box.value()));
        });
    }

    void doubleSpinBox()
    {
        OrvDoubleSpinBox box;
        box.setLocale(QLocale::c());
        box.setDecimals(2);
        box.setRange(-5.0, 20.1);
        box.setSingleStep(0.25);
        box.setValue(-5.0);
        drive(&box, 3u, [&] {
            QVERIFY2(box.value() >= -5.0 && box.value() <= 20.1, qPrintable(box.text()));
            QVERIFY2(onGrid(box.value(), -5.0, 0.25), qPrintable(box.text()));
            QCOMPARE(box.text(), QString::number(box.value(), 'f', 2));
        });
    }

    void multiRangeSpinBox()
    {
        const Ranges ranges{{-50, -20}, {0, 10}, {20, 30}, {45, 60}};
        OrvMultiRangeSpinBox box;
        box.setLocale(QLocale::c());
        box.setRanges(ranges);
        const auto allowed = [&] { QVERIFY2(inRanges(box.value(), ranges), qPrintable(box.text())); };
        drive(&box, 4u, [&] { QCOMPARE(box.text(), QString::number(box.value())); }, allowed);
    }

    void angleEdit()
    {
        OrvAngleEdit edit;
        edit.setLocale(QLocale::c());
        edit.initAngleEditWidget(2);
        edit.showUnits({OrvAngleEdit::Rad});
        auto* combo = edit.findChild<QComboBox*>(QStringLiteral("cBoxAngleUnit"));
        QVERIFY(combo);
        drive(&edit, 5u, [&] {
            const int unit = combo->currentData().toInt();
            const double maximum = unit == OrvAngleEdit::Deg ? 360 : unit == OrvAngleEdit::Mil ? 6400 : 99999;
            for (const auto* box : edit.findChildren<QDoubleSpinBox*>()) {
                QCOMPARE(box->decimals(), unit == OrvAngleEdit::Rad ? 3 : 0);
                QVERIFY(box->value() <= maximum && box->value() >= (unit == OrvAngleEdit::Rad ? -99999 : 0));
                QCOMPARE(box->text(), QString::number(box->value(), 'f', box->decimals()));
            }
        });
    }

    void msecDateTimeEdit()
    {
        OrvMSecDateTimeEdit edit;
        edit.setLocale(QLocale::c());
        edit.setMsecStepSize(25);
        edit.setTimezoneHoursOffset(5);
        edit.setMsecsSinceEpoch(1795000000000);
        drive(&edit, 6u, [&] {
            QCOMPARE(edit.msecsSinceEpoch() % 25, qint64(0));
            QCOMPARE(edit.text(), QLocale::c().toString(edit.dateTime(), edit.displayFormat()));
            const qint64 msecs = edit.msecsSinceEpoch();
            edit.setMsecsSinceEpoch(msecs);
            QCOMPARE(edit.msecsSinceEpoch(), msecs);
        });
    }
};

QTEST_MAIN(TestValueEditorsFuzz)
#include "tst_value_editors_fuzz.moc"
