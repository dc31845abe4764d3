// Randomized key, wheel, focus and button input against the editors; fixed seeds keep failures reproducible.
#include <dtg.h>
#include <orv_angle_edit.h>
#include <orv_date_time_edit.h>
#include <orv_double_spin_box.h>
#include <orv_msec_date_time_edit.h>
#include <orv_multi_range_spin_box.h>
#include <orv_spin_box.h>

#include <QtTest>
#include <QtWidgets>

#include <cmath>
#include <functional>

using namespace OrvWidgets;
using Ranges = QVector<std::pair<int, int>>;

namespace {
constexpr int kSteps = 20000;

bool inRanges(int value, const Ranges& ranges)
{
    return std::any_of(ranges.cbegin(), ranges.cend(),
                       [value](const auto& r) { return value >= r.first && value <= r.second; });
}

// The date-time edit read back from its texts alone: DD, HHMMSS (blanks ignored), zone letter, month name, YY.
qint64 shownInstant(const QStringList& texts)
{
    if (std::any_of(texts.cbegin(), texts.cend(), [](const QString& t) { return t.isEmpty(); }))
        return 0;
    const auto number = [](QString t) { return t.remove(QLatin1Char(' ')).toInt(); };
    const int hms = number(texts[1]);
    const QDate date(2000 + number(texts[4]), int(DTG::months().indexOf(texts[3])) + 1, number(texts[0]));
    const QTime time(hms / 10000, hms / 100 % 100, hms % 100);
    const char zone = texts[2].at(0).toLatin1();
    if (texts[2].size() != 1 || !DTG::isTimezoneValid(zone) || !date.isValid() || !time.isValid())
        return 0;
    return QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch() - qint64(DTG::timezone2Secs(zone, nullptr)) * 1000;
}
} // namespace

class TestEditorsFuzz : public QObject
{
    Q_OBJECT

    // Drives `editor`, placed between two short line edits in an active window. `check(left)` runs after
    // every operation; `left`: the focus has just left the editor.
    void drive(QWidget* editor, quint32 seed, const QString& letters, const std::function<void(bool)>& check)
    {
        QWidget window;
        auto* layout = new QHBoxLayout(&window);
        QList<QWidget*> targets = {new QLineEdit, editor, new QLineEdit};
        for (QWidget* w : targets)
            layout->addWidget(w);
        static_cast<QLineEdit*>(targets[0])->setMaxLength(4);
        static_cast<QLineEdit*>(targets[2])->setMaxLength(4);
        // The caller owns the editor: hand it back on every way out, failures included.
        const auto release = qScopeGuard([editor] { editor->setParent(nullptr); });
        const QList<QLineEdit*> fields = editor->findChildren<QLineEdit*>();
        const QList<QPushButton*> buttons = editor->findChildren<QPushButton*>();
        for (QWidget* w : editor->findChildren<QWidget*>())
            if (w->focusPolicy() != Qt::NoFocus)
                targets << w;
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        editor->setFocus(Qt::TabFocusReason);
        QRandomGenerator random(seed);
        int focusOuts = 0;
        for (int step = 0; step < kSteps; ++step) {
            QWidget* focus = QApplication::focusWidget() ? QApplication::focusWidget() : editor;
            const bool hadFocus = editor == focus || editor->isAncestorOf(focus);
            const int dice = random.bounded(100);
            if (dice < 30) {
                QTest::keyClick(focus, char('0' + random.bounded(10)));
            } else if (dice < 40) {
                QTest::keyClick(focus, letters.at(random.bounded(letters.size())).toLatin1());
            } else if (dice < 50) {
                QTest::keyClick(focus, Qt::Key_Backspace);
            } else if (dice < 60) {
                QTest::keyClick(focus, random.bounded(2) ? Qt::Key_Up : Qt::Key_Down);
            } else if (dice < 67) {
                QTest::keyClick(focus, Qt::Key_Tab, random.bounded(2) ? Qt::ShiftModifier : Qt::NoModifier);
            } else if (dice < 73) {
                static const Qt::Key moves[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Delete};
                QTest::keyClick(focus, moves[random.bounded(5)]);
            } else if (dice < 84) {
                QLineEdit* target = fields.at(random.bounded(int(fields.size())));
                target->setCursorPosition(random.bounded(int(target->text().size()) + 1));
                QWheelEvent wheel(QPointF(2, 2), target->mapToGlobal(QPointF(2, 2)), QPoint(),
                                  QPoint(0, random.bounded(2) ? 120 : -120), Qt::NoButton, Qt::NoModifier,
                                  Qt::NoScrollPhase, false);
                QApplication::sendEvent(target, &wheel);
            } else if (dice < 96) {
                targets.at(random.bounded(int(targets.size())))->setFocus(Qt::MouseFocusReason);
            } else if (dice < 98 && !buttons.isEmpty()) {
                buttons.at(random.bounded(int(buttons.size())))->click();
            } else {
                QTest::keyClick(focus, Qt::Key_F2, random.bounded(2) ? Qt::ShiftModifier : Qt::NoModifier);
            }
            QWidget* now = QApplication::focusWidget();
            const bool left = hadFocus && now != editor && !editor->isAncestorOf(now);
            focusOuts += left;
            check(left);
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QStringLiteral("seed %1, step %2").arg(seed).arg(step)));
            if (step % 1000 == 0)
                QCoreApplication::processEvents();
        }
        QVERIFY2(focusOuts > 100, qPrintable(QString::number(focusOuts)));
    }

private Q_SLOTS:
    // After every step the value is "none" (0) or exactly the instant the fields show.
    void dateTimeEdit_data()
    {
        QTest::addColumn<int>("variant");
        QTest::addColumn<quint32>("seed");
        QTest::newRow("plain") << 0 << 0x5eed0001u;
        QTest::newRow("checkable, limits, buttons, now") << 1 << 0x5eed0002u;
        QTest::newRow("no auto forward, fixed zone") << 2 << 0x5eed0003u;
    }
    void dateTimeEdit()
    {
        QFETCH(int, variant);
        QFETCH(quint32, seed);
        OrvDateTimeEdit edit(nullptr, variant == 1, variant == 1);
        const auto utc = [](int y, int m, int d, int h) {
            return QDateTime(QDate(y, m, d), QTime(h, 0), Qt::UTC).toMSecsSinceEpoch();
        };
        qint64 clock = utc(2026, 2, 27, 22);
        edit.setRetrieveCurrentTimeCallback([&clock] { return clock += 997; });
        if (variant == 1) {
            edit.setMinMaxTimeMSec(utc(2010, 1, 1, 0), utc(2030, 1, 1, 0));
            edit.setWithButtons(true);
        } else if (variant == 2) {
            edit.setAutoForward(false);
            edit.setEditTimezone(false);
        }
        QList<QLineEdit*> fields;
        for (const char* name : {"leLongDay", "leLongHHMMSS", "leLongTZ", "leLongMonth", "leLongYear"})
            fields << edit.findChild<QLineEdit*>(QLatin1String(name));
        int valued = 0;
        // Blanks too: they toggle the check box and are allowed in the digit fields.
        drive(&edit, seed, QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ   abfjz"), [&](bool) {
            const qint64 value = edit.msecsSinceEpoch();
            if (value == 0)
                return;
            ++valued;
            QStringList texts;
            for (const QLineEdit* f : fields)
                texts << f->text();
            QVERIFY2(value == shownInstant(texts),
                     qPrintable(QStringLiteral("%1 for \"%2\"").arg(value).arg(texts.join('|'))));
        });
        // The run must have reached valid instants, or it proved nothing.
        QVERIFY2(valued > kSteps / 10, qPrintable(QString::number(valued)));
    }

    // Once the focus has left, a spin box shows its value, on the grid and outside any hole.
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
        drive(&box, seed, QStringLiteral("aZx.-,+e "), [&](bool left) {
            if (!left)
                return;
            QVERIFY2(box.value() >= -20 && box.value() <= 103 && (box.value() + 20) % box.singleStep() == 0
                         && !inRanges(box.value(), exclusions), qPrintable(box.text()));
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
        drive(&box, 3u, QStringLiteral("aZx.-,+e "), [&](bool left) {
            if (!left)
                return;
            const double k = (box.value() + 5.0) / 0.25;
            QVERIFY2(box.value() >= -5.0 && box.value() <= 20.1 && std::fabs(k - std::round(k)) < 1e-6,
                     qPrintable(box.text()));
            QCOMPARE(box.text(), QString::number(box.value(), 'f', 2));
        });
    }

    // The value never leaves the ranges, not even while typing.
    void multiRangeSpinBox()
    {
        const Ranges ranges{{-50, -20}, {0, 10}, {20, 30}, {45, 60}};
        OrvMultiRangeSpinBox box;
        box.setLocale(QLocale::c());
        box.setRanges(ranges);
        drive(&box, 4u, QStringLiteral("aZx.-,+e "), [&](bool left) {
            QVERIFY2(inRanges(box.value(), ranges), qPrintable(box.text()));
            if (left)
                QCOMPARE(box.text(), QString::number(box.value()));
        });
    }

    void angleEdit()
    {
        OrvAngleEdit edit;
        edit.setLocale(QLocale::c());
        edit.initAngleEditWidget(2);
        edit.showUnits({OrvAngleEdit::Rad});
        auto* combo = edit.findChild<QComboBox*>(QStringLiteral("cBoxAngleUnit"));
        drive(&edit, 5u, QStringLiteral("aZx.-,+e "), [&](bool left) {
            if (!left)
                return;
            const int unit = combo->currentData().toInt();
            const double maximum = unit == OrvAngleEdit::Deg ? 360 : unit == OrvAngleEdit::Mil ? 6400 : 99999;
            for (const auto* box : edit.findChildren<QDoubleSpinBox*>()) {
                QCOMPARE(box->decimals(), unit == OrvAngleEdit::Rad ? 3 : 0);
                QVERIFY(box->value() <= maximum && box->value() >= (unit == OrvAngleEdit::Rad ? -99999 : 0));
                QCOMPARE(box->text(), QString::number(box->value(), 'f', box->decimals()));
            }
        });
    }

    // On the step grid, shown as its instant, and set again unchanged.
    void msecDateTimeEdit()
    {
        OrvMSecDateTimeEdit edit;
        edit.setLocale(QLocale::c());
        edit.setMsecStepSize(25);
        edit.setTimezoneHoursOffset(5);
        edit.setMsecsSinceEpoch(1795000000000);
        drive(&edit, 6u, QStringLiteral("aZx.-,+e "), [&](bool left) {
            if (!left)
                return;
            QCOMPARE(edit.msecsSinceEpoch() % 25, qint64(0));
            QCOMPARE(edit.text(), QLocale::c().toString(edit.dateTime(), edit.displayFormat()));
            const qint64 msecs = edit.msecsSinceEpoch();
            edit.setMsecsSinceEpoch(msecs);
            QCOMPARE(edit.msecsSinceEpoch(), msecs);
        });
    }
};

QTEST_MAIN(TestEditorsFuzz)
#include "tst_editors_fuzz.moc"
