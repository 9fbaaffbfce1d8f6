#pragma once

#include "platform/image/image_bytes.h"

#include <memory>
#include <string>

namespace torvik {

/// How the sectors of a track lie in a file: bytes from one to the next, and where in each the 2,048 bytes of
/// content begin.
struct SectorForm {
    int size = 2048;
    int dataAt = 0;
};

/// The content of a disc image as one row of bytes, whatever the sectors of its file look like. Several
/// threads may read at once.
class DiscSectors {
public:
    /// Finds the track and the form of sectors under which the file system's mark stands in its place.
    /// Failure 68 when the file cannot be opened or holds no such mark.
    static std::unique_ptr<DiscSectors> Open(const std::string& imageFile);

    /// Bytes of content, as it was when the file was opened. The last sector may be cut.
    qint64 Length() const { return length_; }
    /// Reads up to `room` bytes from a place, counted from 0; fewer only at the end of what the file holds
    /// now. Failure 57, Device I/O error.
    qsizetype Read(qint64 place, char* target, qsizetype room) const;

private:
    DiscSectors(std::unique_ptr<ImageBytes> file, qint64 firstByte, const SectorForm& form);
    bool HasMark() const;
    qsizetype ReadSectors(qint64 place, char* target, qsizetype room) const;

    std::unique_ptr<ImageBytes> file_;
    qint64 firstByte_;
    SectorForm form_;
    qint64 length_ = 0;
};

} // namespace torvik
