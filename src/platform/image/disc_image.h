#pragma once

#include "platform/image/disc_sectors.h"

#include <memory>
#include <string>
#include <vector>

namespace torvik {

/// A file or folder of a disc image.
struct ImageEntry {
    /// A part of the image, in bytes.
    struct Extent {
        qint64 place = 0;
        qint64 length = 0;
    };

    std::string name;
    bool isFolder = false;
    std::size_t folder = 0; ///< of a folder: its number
    qint64 length = 0;      ///< bytes, as the image tells; there may be less
    qint64 written = 0;     ///< seconds since 1970
    std::vector<Extent> extents;
};

/// An image of a disc: its folders are read when it is opened, its files when they are asked for. It never
/// changes, and several threads may read at once. A damaged image shows what can still be read. Limits keep
/// what is read of a hostile one small: a folder is read once, folders lie 64 deep at most, and there are
/// 200,000 entries and 64 MiB of folders at most.
class DiscImage {
public:
    /// Failure 68, Device unavailable, when the file is no image or cannot be opened.
    explicit DiscImage(const std::string& imageFile);

    /// The folders by their numbers; 0 is the root. Entries stand in the order of the image.
    const std::vector<std::vector<ImageEntry>>& Folders() const { return folders_; }
    /// Bytes of the disc.
    qint64 Length() const { return sectors_->Length(); }

    /// Reads up to `room` bytes of a file from a byte on, counted from 0; 0 at its end. Failure 57, Device
    /// I/O error, for what the image tells of but does not hold.
    qsizetype Read(const ImageEntry& file, qint64 place, char* target, qsizetype room) const;

private:
    std::unique_ptr<DiscSectors> sectors_;
    std::vector<std::vector<ImageEntry>> folders_;
};

} // namespace torvik
