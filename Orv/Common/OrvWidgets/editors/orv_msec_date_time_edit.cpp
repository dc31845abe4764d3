#include "orv_msec_date_time_edit.h"
#include "orv_logging_p.h"

#include <QLoggingCategory>
#include <QTimeZone>

namespace OrvWidgets {

namespace {
const QString kDisplayFormat = QStringLiteral("dd.MM.yy HH:mm:ss.zzz");
constexpr qint64 kMSecsPerHour = 3600 * 1000;
} // namespace

// The edit holds the shown wall-clock fields as a UTC date-time. A local-time
// edit would drop or shift wall-clock times that fall into a daylight-saving gap
// of the machine's zone, so a value would not come back unchanged for every offset.

OrvMSecDateTimeEdit::OrvMSecDateTimeEdit(QWidget* parent)
    : QDateTimeEdit(parent)
{
    const QDateTime shown = dateTime();
    init();
    showWallClock(shown);
}

OrvMSecDateTimeEdit::OrvMSecDateTimeEdit(const QDateTime& dateTime, QWidget* parent)
    : QDateTimeEdit(dateTime, parent)
{
    init();
    setDateTime(dateTime);
}

OrvMSecDateTimeEdit::OrvMSecDateTimeEdit(const QDate& date, QWidget* parent)
    : QDateTimeEdit(date, parent)
{
    init();
    showWallClock(QDateTime(date, QTime(0, 0)));
}

OrvMSecDateTimeEdit::OrvMSecDateTimeEdit(const QTime& time, QWidget* parent)
    : QDateTimeEdit(time, parent)
{
    const QDate date = dateTime().date();
    init();
    showWallClock(QDateTime(date, time));
}

OrvMSecDateTimeEdit::~OrvMSecDateTimeEdit() = default;

void OrvMSecDateTimeEdit::init()
{
    m_msecStepSize = 10;
    m_timezoneHoursOffset = 0;
    setTimeSpec(Qt::UTC);
    // A time-only start narrows the date range to one day; the full format needs all dates.
    clearMinimumDateTime();
    clearMaximumDateTime();
    setWrapping(true);
    setDisplayFormat(kDisplayFormat);
    connect(this, &QDateTimeEdit::editingFinished, this, &OrvMSecDateTimeEdit::onEditingFinished);
}

void OrvMSecDateTimeEdit::showWallClock(const QDateTime& wallClock)
{
    QDateTimeEdit::setDateTime(QDateTime(wallClock.date(), wallClock.time(), Qt::UTC));
}

void OrvMSecDateTimeEdit::setMsecsSinceEpoch(qint64 msecs)
{
    showWallClock(QDateTime::fromMSecsSinceEpoch(msecs, Qt::OffsetFromUTC, m_timezoneHoursOffset * 3600));
}

qint64 OrvMSecDateTimeEdit::msecsSinceEpoch() const
{
    return dateTime().toMSecsSinceEpoch() - m_timezoneHoursOffset * kMSecsPerHour;
}

void OrvMSecDateTimeEdit::setDateTime(const QDateTime& dateTime)
{
    if (!dateTime.isValid())
        return;
    setMsecsSinceEpoch(dateTime.toMSecsSinceEpoch());
}

void OrvMSecDateTimeEdit::setTimezoneHoursOffset(int hours)
{
    const qint64 value = msecsSinceEpoch();
    m_timezoneHoursOffset = hours;
    setMsecsSinceEpoch(value);
}

void OrvMSecDateTimeEdit::setMsecStepSize(int msecs)
{
    // The step is the rounding divisor.
    if (msecs <= 0) {
        qCWarning(lcEditors) << "OrvMSecDateTimeEdit::setMsecStepSize: step must be positive:" << msecs;
        return;
    }
    m_msecStepSize = msecs;
}

void OrvMSecDateTimeEdit::stepBy(int steps)
{
    // Whole-value arithmetic, so a step carries into the next larger unit.
    const QDateTime current = dateTime();
    QDateTime next;
    switch (currentSection()) {
    case MSecSection:
        next = current.addMSecs(qint64(m_msecStepSize) * steps);
        break;
    case SecondSection:
        next = current.addSecs(steps);
        break;
    case MinuteSection:
        next = current.addSecs(qint64(steps) * 60);
        break;
    case HourSection:
        next = current.addSecs(qint64(steps) * 3600);
        break;
    case DaySection:
        next = current.addDays(steps);
        break;
    case MonthSection:
        next = current.addMonths(steps);
        break;
    case YearSection:
        next = current.addYears(steps);
        break;
    default:
        return;
    }
    const int section = currentSectionIndex();
    QDateTimeEdit::setDateTime(next);
    setCurrentSectionIndex(section);
    setSelectedSection(currentSection());
}

void OrvMSecDateTimeEdit::onEditingFinished()
{
    const qint64 ms = msecsSinceEpoch();
    const qint64 s = m_msecStepSize;
    if (ms % s != 0)
        setMsecsSinceEpoch(s * ((ms + s / 2) / s));
}

} // namespace OrvWidgets
