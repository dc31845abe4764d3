#include "dtg.h"

#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcDtg, "orv.platform.dtg")

namespace DTG {
namespace {

DateTimeType s_type = eZulu;
char s_zone = 'Z';

const QStringList& monthNames()
{
    static const QStringList names = {
        QStringLiteral("JAN"), QStringLiteral("FEB"), QStringLiteral("MAR"), QStringLiteral("APR"),
        QStringLiteral("MAY"), QStringLiteral("JUN"), QStringLiteral("JUL"), QStringLiteral("AUG"),
        QStringLiteral("SEP"), QStringLiteral("OCT"), QStringLiteral("NOV"), QStringLiteral("DEC"),
    };
    return names;
}

QString format(const QDateTime& utc, DisplayFormat fmt, char zone)
{
    bool ok = false;
    const int offset = timezone2Secs(zone, &ok);
    const QDateTime local = utc.addSecs(ok ? offset : 0);
    const QDate d = local.date();
    const QTime t = local.time();
    QString text = QStringLiteral("%1%2%3")
                       .arg(d.day(), 2, 10, QLatin1Char('0'))
                       .arg(t.hour(), 2, 10, QLatin1Char('0'))
                       .arg(t.minute(), 2, 10, QLatin1Char('0'));
    if (fmt == eShortSeconds || fmt == eLongSeconds)
        text += QStringLiteral("%1").arg(t.second(), 2, 10, QLatin1Char('0'));
    text += QLatin1Char(ok ? zone : 'Z');
    if (fmt == eLong || fmt == eLongSeconds) {
        text += QLatin1Char(' ') + monthNames().at(d.month() - 1) + QLatin1Char(' ')
              + QStringLiteral("%1").arg(d.year() % 100, 2, 10, QLatin1Char('0'));
    }
    return text;
}

} // namespace

QString toString(const QDateTime& dateTime, DisplayFormat fmt, DateTimeType type)
{
    if (!dateTime.isValid())
        return QString();
    const QDateTime utc = dateTime.toUTC();
    return format(utc, fmt, type == eLocalZone ? s_zone : 'Z');
}

QString toStringMSec(qint64 msecsSinceEpoch, DisplayFormat fmt)
{
    return toString(QDateTime::fromMSecsSinceEpoch(msecsSinceEpoch, Qt::UTC), fmt, s_type);
}

DateTimeType dateTimeType()
{
    return s_type;
}

void setDateTimeType(DateTimeType type)
{
    s_type = type;
}

QStringList months()
{
    return monthNames();
}

char timezone()
{
    return s_zone;
}

void setTimezone(char zone)
{
    if (!isTimezoneValid(zone)) {
        qCWarning(lcDtg) << "DTG::setTimezone: invalid zone letter" << int(zone) << "- keeping" << s_zone;
        return;
    }
    s_zone = zone;
}

int timezone2Secs(char zone, bool* ok)
{
    int hours = 0;
    bool valid = true;
    if (zone >= 'A' && zone <= 'I')
        hours = zone - 'A' + 1;
    else if (zone >= 'K' && zone <= 'M')
        hours = zone - 'K' + 10;
    else if (zone >= 'N' && zone <= 'Y')
        hours = -(zone - 'N' + 1);
    else if (zone != 'Z')
        valid = false;
    if (ok)
        *ok = valid;
    return hours * 3600;
}

bool isTimezoneValid(char zone)
{
    bool ok = false;
    timezone2Secs(zone, &ok);
    return ok;
}

} // namespace DTG
