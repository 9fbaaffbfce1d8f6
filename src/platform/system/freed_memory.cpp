#include "platform/system/freed_memory.h"

#include <QtGlobal> // brings what the C library calls itself

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace torvik {

// The C library begins well, with a mapping for each large block, but raises its idea of large to the size of
// whatever large block was freed. Pictures then lie between small blocks, and what they leave stays with the
// program. A size that was set stays as it is.
void GiveFreedMemoryBack()
{
#ifdef __GLIBC__
    constexpr int large = 256 * 1024; // bytes; a photo on show takes a megabyte or more
    mallopt(M_MMAP_THRESHOLD, large);
#endif
}

} // namespace torvik
