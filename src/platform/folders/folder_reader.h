#pragma once

#include <functional>
#include <string>
#include <string_view>

struct stat;

namespace torvik {

/// What a folder's entry is, as far as the folder itself tells.
enum class EntryKind {
    File,   ///< a regular file
    Folder, ///< a folder
    Other,  ///< a device, a pipe, a socket
    Unknown ///< a symbolic link, or a file system that does not tell: only a look at the entry itself shows
};

/// One pass over a folder of the host without a look at the single entries.
class FolderReader {
public:
    /// Opens the folder; Error() tells the system's error number, 0 when it went well.
    explicit FolderReader(const std::string& folder);
    ~FolderReader();
    FolderReader(const FolderReader&) = delete;
    FolderReader& operator=(const FolderReader&) = delete;

    int Error() const { return error_; }
    /// The state of the open folder itself.
    bool Status(struct stat& status) const;
    /// Calls `visit` for each entry but "." and "..", in the order of the file system. False, and Error()
    /// set, when the folder could not be read to its end.
    bool ForEach(const std::function<void(std::string_view name, EntryKind kind)>& visit);
    /// What the entry is after links were followed; Unknown when it does not exist, as behind a dangling
    /// link.
    EntryKind Look(const std::string& name) const;

private:
    void* handle_ = nullptr;
    int error_ = 0;
};

} // namespace torvik
