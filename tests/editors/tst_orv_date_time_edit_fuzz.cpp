// Random keyboard, wheel and focus input against the date-time edit: after every step the value
// must be "none" (0) or exactly the instant its fields show.
#include "date_time_edit_test_util.h"

#include <dtg.h>

using namespace OrvWidgets;
using namespace DateTimeEditTest;

namespace {
// Read back from the texts alone: DD, HHMMSS (blanks ignored), zone letter, month name, YY.
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

#if defined(__SANITIZE_ADDRESS__)
constexpr int kSteps = 20000; // the sanitizer build is several times slower; keep the floor
#else
constexpr int kSteps = 30000;
#endif
} // namespace

class TestOrvDateTimeEditFuzz : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fuzz_data()
    {
        QTest::addColumn<int>("variant");
        QTest::addColumn<quint32>("seed");
        QTest::newRow("plain") << 0 << 0x5eed0001u;
        QTest::newRow("checkable, limits, buttons, now") << 1 << 0x5eed0002u;
        QTest::newRow("no auto forward, fixed zone") << 2 << 0x5eed0003u;
    }
    void fuzz()
    {
        QFETCH(int, variant);
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        Window w(variant == 1, variant == 1);
        OrvDateTimeEdit* edit = w.edit;
        w.before->setMaxLength(4);
        w.after->setMaxLength(4);
        qint64 clock = utc(2026, 2, 27, 22);
        edit->setRetrieveCurrentTimeCallback([&clock] { return clock += 997; });
        if (variant == 1) {
            edit->setMinMaxTimeMSec(utc(2010, 1, 1), utc(2030, 1, 1));
            edit->setWithButtons(true);
        } else if (variant == 2) {
            edit->setAutoForward(false);
            edit->setEditTimezone(false);
        }
        QList<QWidget*> targets = {w.before, w.after};
        for (const char* name : kFields)
            targets << field(*edit, name);
        const QList<QPushButton*> buttons = edit->findChildren<QPushButton*>();
        int valued = 0;
        for (int step = 0; step < kSteps; ++step) {
            QWidget* focus = QApplication::focusWidget() ? QApplication::focusWidget() : &w.top;
            const int dice = random.bounded(100);
            if (dice < 30) {
                QTest::keyClick(focus, char('0' + random.bounded(10)));
            } else if (dice < 40) {
                // Blanks too: they toggle the check box and are allowed in the digit fields.
                const char letter = random.bounded(8) == 0 ? ' ' : char('A' + random.bounded(26));
                QTest::keyClick(focus, letter != ' ' && random.bounded(3) == 0 ? char(letter + 32) : letter);
            } else if (dice < 50) {
                QTest::keyClick(focus, Qt::Key_Backspace);
            } else if (dice < 58) {
                QTest::keyClick(focus, random.bounded(2) ? Qt::Key_Up : Qt::Key_Down);
            } else if (dice < 66) {
                QTest::keyClick(focus, Qt::Key_Tab, random.bounded(2) ? Qt::ShiftModifier : Qt::NoModifier);
            } else if (dice < 74) {
                static const Qt::Key moves[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Delete};
                QTest::keyClick(focus, moves[random.bounded(5)]);
            } else if (dice < 84) {
                auto* target = static_cast<QLineEdit*>(targets.at(2 + random.bounded(5)));
                target->setCursorPosition(random.bounded(int(target->text().size()) + 1));
                sendWheel(target, random.bounded(2) ? 120 : -120);
            } else if (dice < 96) {
                targets.at(random.bounded(int(targets.size())))->setFocus(Qt::MouseFocusReason);
            } else if (dice < 98 && !buttons.isEmpty()) {
                buttons.at(random.bounded(int(buttons.size())))->click();
            } else {
                QTest::keyClick(focus, Qt::Key_F2, random.bounded(2) ? Qt::ShiftModifier : Qt::NoModifier);
            }
            const qint64 value = edit->msecsSinceEpoch();
            if (value != 0) {
                ++valued;
                const QStringList texts = fieldTexts(*edit);
                QVERIFY2(value == shownInstant(texts), qPrintable(QStringLiteral("step %1: %2 for \"%3\"")
                                                                      .arg(step).arg(value).arg(texts.join('|'))));
            }
        }
        // The run must have reached valid instants, or it proved nothing.
        QVERIFY2(valued > kSteps / 10, qPrintable(QString::number(valued)));
    }
};

QTEST_MAIN(TestOrvDateTimeEditFuzz)
#include "tst_orv_date_time_edit_fuzz.moc"
