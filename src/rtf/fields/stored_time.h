#pragma once

#include <QDateTime>

namespace torvik::rtf {

/// A time that a document tells piece by piece; pieces that are out of range are kept as they are.
struct StoredTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;

    /// An invalid time where the pieces make none. It is not bound to a place on earth: an hour that a change
    /// of the clocks leaves out is one all the same.
    QDateTime Value() const;
};

} // namespace torvik::rtf
