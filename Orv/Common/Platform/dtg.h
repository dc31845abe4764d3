#pragma once

#include "orvplatform_export.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

/*! Military date-time groups: day, time, one-letter zone, month name, year. */
namespace DTG {

/*! How a date-time group is written. */
enum DisplayFormat {
    eShort = 0,        ///< "DDHHMMZ", e.g. "141530Z"
    eShortSeconds = 1, ///< "DDHHMMSSZ", e.g. "14153000Z"
    eLong = 2,         ///< "DDHHMMZ MON YY", e.g. "141530Z NOV 26"
    eLongSeconds = 3   ///< "DDHHMMSSZ MON YY", e.g. "14153000Z NOV 26"
};

/*! Which zone date-time groups are written in. */
enum DateTimeType {
    eZulu = 0,     ///< always zone Z (UTC)
    eLocalZone = 1 ///< in the zone letter of timezone()
};

/*! \a dateTime as a date-time group in \a format, in zone Z or in timezone() as \a type
    says; an empty string for an invalid \a dateTime. */
ORVPLATFORM_EXPORT QString toString(const QDateTime& dateTime, DisplayFormat format, DateTimeType type);
/*! \a msecsSinceEpoch (UTC) as a date-time group in \a format and the zone of dateTimeType(). */
ORVPLATFORM_EXPORT QString toStringMSec(qint64 msecsSinceEpoch, DisplayFormat format);

/*! The zone the application writes date-time groups in; eZulu by default. */
ORVPLATFORM_EXPORT DateTimeType dateTimeType();
/*! Sets the zone the application writes date-time groups in. */
ORVPLATFORM_EXPORT void setDateTimeType(DateTimeType type);

/*! The month names of date-time groups, "JAN" to "DEC". */
ORVPLATFORM_EXPORT QStringList months();

/*! The local zone letter; 'Z' by default. */
ORVPLATFORM_EXPORT char timezone();
/*! Sets the local zone letter; an invalid letter is refused with a warning. */
ORVPLATFORM_EXPORT void setTimezone(char zone);

/*! The offset of zone letter \a zone from UTC in seconds: A..I = +1..+9 h,
    K..M = +10..+12 h, N..Y = -1..-12 h, Z = 0. Anything else is invalid: 0, and
    \a *ok (when given) false. */
ORVPLATFORM_EXPORT int timezone2Secs(char zone, bool* ok);
/*! True for the zone letters A..Z without J (upper case only). */
ORVPLATFORM_EXPORT bool isTimezoneValid(char zone);

} // namespace DTG
