#include "platform/paths/folder_volume.h"

#include "platform/folders/case_insensitive_lookup.h"
#include "platform/folders/folder_reader.h"
#include "platform/folders/system_failure.h"
#include "platform/paths/host_file.h"
#include "runtime/failure.h"

#include <cerrno>
#include <sys/stat.h>

namespace torvik {

namespace {

std::vector<std::string> NamesIn(const std::string& folder, EntryKind wantedKind,
                                 const Volume::NameTest& isWanted)
{
    FolderReader reader(folder);
    if (reader.Error() == ENOENT || reader.Error() == ENOTDIR)
        return {};
    std::vector<std::string> names;
    reader.ForEach([&](std::string_view name, EntryKind kind) {
        if ((kind != wantedKind && kind != EntryKind::Unknown) || !isWanted(name))
            return;
        std::string entry(name);
        if (kind == wantedKind || reader.Look(entry) == wantedKind)
            names.push_back(std::move(entry));
    });
    if (reader.Error() != 0)
        Fail(failure::pathFileAccess);
    return names;
}

} // namespace

std::string FolderVolume::Spelling(const std::string& path) const
{
    return SpellingOnHost(root_, root_ + path).substr(root_.size());
}

EntryStatus FolderVolume::Status(const std::string& path) const
{
    const std::string hostPath = root_ + path;
    struct stat status {};
    if (stat(hostPath.empty() ? "/" : hostPath.c_str(), &status) != 0)
        Fail(FailureOfSystem(errno, hostPath));
    const qint64 altered = qint64{status.st_ctim.tv_sec} * 1'000'000'000 + status.st_ctim.tv_nsec;
    return {S_ISREG(status.st_mode),
            S_ISDIR(status.st_mode),
            status.st_size,
            status.st_mtim.tv_sec,
            altered,
            status.st_ino};
}

std::vector<std::string> FolderVolume::Files(const std::string& folder, const NameTest& isWanted) const
{
    return NamesIn(root_ + folder, EntryKind::File, isWanted);
}

std::vector<std::string> FolderVolume::Folders(const std::string& folder, const NameTest& isWanted) const
{
    return NamesIn(root_ + folder, EntryKind::Folder, isWanted);
}

std::unique_ptr<OpenFile> FolderVolume::Open(const std::string& path) const
{
    return std::make_unique<HostFile>(root_ + path);
}

} // namespace torvik
