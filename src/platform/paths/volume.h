#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

/// A file that is open for reading, wherever it lies. Failures are RunTimeError.
class OpenFile {
public:
    OpenFile() = default;
    virtual ~OpenFile() = default;
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// The length in bytes that is told of it; some files hold more or less than that.
    virtual qint64 Length() const = 0;
    /// Reads up to `room` bytes; returns how many came, 0 at the end. Failure 57, Device I/O error.
    virtual qsizetype Read(char* target, qsizetype room) = 0;
    /// Reads on from a byte, counted from 0; at or past the end nothing comes.
    virtual void SeekTo(qint64 place) = 0;
};

/// What is known of a file or folder that is not open.
struct EntryStatus {
    bool isFile = false; ///< neither a folder nor a device, a pipe or the like
    bool isFolder = false;
    qint64 length = 0;  ///< bytes
    qint64 written = 0; ///< seconds since 1970
    qint64 altered = 0; ///< nanoseconds since 1970, of the last change of anything; 0 where nothing changes
    quint64 number = 0; ///< by which the host knows it under any name; 0 where it has none

    bool operator==(const EntryStatus&) const = default;
};

/// What a drive letter stands for: a folder of the host, or the image of a disc. A path inside is bytes,
/// begins with a slash, and has neither empty components nor "." or ".."; the volume's root is the empty
/// text. Failures are RunTimeError. Only Spelling, Status and Open may be called by other threads than the
/// user interface's.
class Volume {
public:
    using NameTest = std::function<bool(std::string_view name)>;

    Volume();
    virtual ~Volume() = default;
    Volume(const Volume&) = delete;
    Volume& operator=(const Volume&) = delete;

    /// A number that no other volume of this run has had, so that an image is told from the next one in the
    /// same drive.
    quint64 Number() const { return number_; }

    /// How a path is spelled: as it stands when it exists, otherwise with the names that differ in letter
    /// case alone, the first in binary order of several. What exists in no spelling stays as it is written.
    /// Failure 68, Device unavailable, when the volume is not there.
    virtual std::string Spelling(const std::string& path) const = 0;

    // The rest takes paths as they are spelled.

    /// Failures: 53 File not found, 76 Path not found, 70 Permission denied.
    virtual EntryStatus Status(const std::string& path) const = 0;
    /// The names of a folder's files for which `isWanted` holds, in the order of the volume; none when there
    /// is no such folder. Failure 75 when it cannot be read.
    virtual std::vector<std::string> Files(const std::string& folder, const NameTest& isWanted) const = 0;
    /// The same for the folders in a folder.
    virtual std::vector<std::string> Folders(const std::string& folder, const NameTest& isWanted) const = 0;
    /// Failures: those of Status; 75 for what is no file, 67 Too many files.
    virtual std::unique_ptr<OpenFile> Open(const std::string& path) const = 0;
    /// The host's name for a path, by which it can be written. Nothing where the host has none.
    virtual std::optional<std::string> HostPath(const std::string& path) const = 0;

private:
    quint64 number_;
};

/// A file or folder, or where one is yet to be made.
struct Place {
    std::shared_ptr<const Volume> on;
    std::string path; ///< as it is spelled there
};

} // namespace torvik
