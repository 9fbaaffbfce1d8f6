#pragma once

#include <QDateTime>

namespace torvik {

/// Time as the program's timers know it. It follows the machine, unless it is turned by hand.
class Clock {
public:
    /// The date and time of day.
    static QDateTime Now();
    /// The same as seconds since 1970. It needs no time zone, so it can be asked often.
    static qint64 Second();

    /// From here on time stands still until it is turned; begins at `start`.
    static void StopAt(const QDateTime& start);
    /// Turns a stopped clock on by milliseconds; every timer that is due ticks on the way, in order.
    static void Turn(int milliseconds);
    /// Follows the machine again.
    static void Run();
    static bool IsStopped();
};

} // namespace torvik
