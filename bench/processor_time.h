#pragma once

#include <ctime>
#include <sys/resource.h>

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

/// Processor milliseconds of the processes that this one has started and that have ended.
inline double ChildrenMilliseconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

} // namespace torvik::bench
