#pragma once

#include <ctime>

namespace torvik::bench {

inline double MillisecondsOf(clockid_t clock)
{
    std::timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// Processor milliseconds that this thread has taken so far.
inline double ThreadMilliseconds()
{
    return MillisecondsOf(CLOCK_THREAD_CPUTIME_ID);
}

/// Processor milliseconds that all threads of the process have taken so far.
inline double ProcessMilliseconds()
{
    return MillisecondsOf(CLOCK_PROCESS_CPUTIME_ID);
}

} // namespace torvik::bench
