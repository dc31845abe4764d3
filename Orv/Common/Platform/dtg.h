#pragma once

#include "orvplatform_export.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

// Military date-time groups: day, time, one-letter zone, month name, year.
namespace DTG {

enum DisplayFormat {
    eShort = 0,        // "DDHHMMZ"            e.g. "141530Z"
    eShortSeconds = 1, // "DDHHMMSSZ"          e.g. "14153000Z"
    eLong = 2,         // "DDHHMMZ MON YY"     e.g. "141530Z NOV 26"
    eLongSeconds = 3   // "DDHHMMSSZ MON YY"   e.g. "14153000Z NOV 26"
};

enum DateTimeType {
    eZulu = 0,     // always zone Z
    eLocalZone = 1 // in the zone letter of timezone()
};

ORVPLATFORM_EXPORT QString toString(const QDateTime& dateTime, DisplayFormat format, DateTimeType type);
ORVPLATFORM_EXPORT QString toStringMSec(qint64 msecsSinceEpoch, DisplayFormat format);

ORVPLATFORM_EXPORT DateTimeType dateTimeType();
ORVPLATFORM_EXPORT void setDateTimeType(DateTimeType type);

ORVPLATFORM_EXPORT QStringList months();

ORVPLATFORM_EXPORT char timezone();
ORVPLATFORM_EXPORT void setTimezone(char zone);

// A..I = +1..+9 h, K..M = +10..+12 h, N..Y = -1..-12 h, Z = 0; anything else is
// invalid (*ok false, 0).
ORVPLATFORM_EXPORT int timezone2Secs(char zone, bool* ok);
ORVPLATFORM_EXPORT bool isTimezoneValid(char zone);

} // namespace DTG
