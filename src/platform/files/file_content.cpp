#include "platform/files/file_content.h"

#include "platform/paths/volume.h"
#include "runtime/failure.h"

#include <algorithm>
#include <limits>
#include <new>

namespace torvik {

namespace {

/// What fits into the address space of the machines that the program is made for.
constexpr qint64 largestContent = std::numeric_limits<qint32>::max();

/// For a file that claims to be longer, room for the rest is made as it comes.
constexpr qint64 firstRoom = qint64{64} * 1024 * 1024;

} // namespace

QByteArray ContentOf(const Place& place)
{
    const std::unique_ptr<OpenFile> file = place.on->Open(place.path);
    if (file->Length() > largestContent)
        Fail(failure::outOfMemory);
    try {
        QByteArray content;
        qsizetype filled = 0;
        content.resize(static_cast<qsizetype>(std::min(file->Length(), firstRoom)) +
                       1); // shows the end at once
        for (;;) {
            const qsizetype got = file->Read(content.data() + filled, content.size() - filled);
            filled += got;
            if (got == 0)
                break;
            if (filled == content.size())
                content.resize(content.size() * 2); // longer than it said
            if (filled > largestContent)
                Fail(failure::outOfMemory);
        }
        content.truncate(filled);
        return content;
    } catch (const std::bad_alloc&) {
        Fail(failure::outOfMemory);
    }
}

} // namespace torvik
