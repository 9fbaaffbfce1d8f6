#pragma once

#include <QtGlobal>

#include <sched.h>

namespace torvik::bench {

/// Keeps all threads of the process that are yet to begin on the first so many processors.
inline void UseProcessors(unsigned count)
{
    cpu_set_t set;
    CPU_ZERO(&set);
    for (unsigned processor = 0; processor < count; ++processor)
        CPU_SET(processor, &set);
    if (sched_setaffinity(0, sizeof set, &set) != 0)
        qFatal("the processors cannot be chosen");
}

} // namespace torvik::bench
