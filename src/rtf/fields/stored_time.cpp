#include "rtf/fields/stored_time.h"

#include <QTimeZone>

namespace torvik::rtf {

QDateTime StoredTime::Value() const
{
    constexpr int lastYear = 9999;
    const QDate date(year, month, day);
    const QTime clock(hour, minute, second);
    if (year < 1 || year > lastYear || !date.isValid() || !clock.isValid())
        return {};
    return QDateTime(date, clock, QTimeZone::utc());
}

} // namespace torvik::rtf
