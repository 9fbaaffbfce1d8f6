#include "platform/folders/folder_reader.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace torvik {

namespace {

EntryKind KindOf(unsigned char type)
{
    switch (type) {
    case DT_REG:
        return EntryKind::File;
    case DT_DIR:
        return EntryKind::Folder;
    case DT_LNK:
    case DT_UNKNOWN:
        return EntryKind::Unknown;
    default:
        return EntryKind::Other;
    }
}

DIR* AsFolder(void* handle)
{
    return static_cast<DIR*>(handle);
}

} // namespace

FolderReader::FolderReader(const std::string& folder)
{
    handle_ = opendir(folder.empty() ? "/" : folder.c_str());
    if (!handle_)
        error_ = errno;
}

FolderReader::~FolderReader()
{
    if (handle_)
        closedir(AsFolder(handle_));
}

bool FolderReader::Status(struct stat& status) const
{
    return handle_ && fstat(dirfd(AsFolder(handle_)), &status) == 0;
}

bool FolderReader::ForEach(const std::function<void(std::string_view, EntryKind)>& visit)
{
    if (!handle_)
        return false;
    for (;;) {
        errno = 0;
        const dirent* const entry = readdir(AsFolder(handle_));
        if (!entry) {
            error_ = errno;
            return error_ == 0;
        }
        const std::string_view name(entry->d_name);
        if (name != "." && name != "..")
            visit(name, KindOf(entry->d_type));
    }
}

EntryKind FolderReader::Look(const std::string& name) const
{
    struct stat status {};
    if (!handle_ || fstatat(dirfd(AsFolder(handle_)), name.c_str(), &status, 0) != 0)
        return EntryKind::Unknown;
    if (S_ISREG(status.st_mode))
        return EntryKind::File;
    return S_ISDIR(status.st_mode) ? EntryKind::Folder : EntryKind::Other;
}

} // namespace torvik
