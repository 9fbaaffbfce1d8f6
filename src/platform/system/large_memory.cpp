#include "platform/system/large_memory.h"

#include <cstdlib>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace torvik {

void* TakeLargeMemory(std::size_t bytes)
{
    constexpr std::size_t page = 4096; // or a part of one
    const std::size_t whole = (bytes + page - 1) / page * page;
    void* memory = whole < bytes ? nullptr : std::aligned_alloc(page, whole);
#if defined(MADV_POPULATE_WRITE)
    if (memory != nullptr)
        madvise(memory, whole, MADV_POPULATE_WRITE); // a refusal only costs time
#endif
    return memory;
}

void FreeLargeMemory(void* memory)
{
    std::free(memory);
}

} // namespace torvik
