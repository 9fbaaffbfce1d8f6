#include "platform/files/file_changes.h"

#include "platform/files/binary_file.h"
#include "platform/files/files.h"
#include "platform/folders/case_insensitive_lookup.h"
#include "platform/folders/system_failure.h"
#include "platform/paths/drives.h"
#include "platform/paths/matching_names.h"
#include "runtime/failure.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace torvik {

namespace {

/// The failure of an attempt to delete the file, 0 when it is gone.
int Unlink(const std::string& hostPath)
{
    if (unlink(hostPath.c_str()) != 0)
        return errno == EISDIR ? failure::fileNotFound : FailureOfSystem(errno, hostPath);
    NameRemoved(hostPath);
    return 0;
}

std::optional<struct stat> StatusOf(const QString& path)
{
    std::optional<struct stat> status;
    ResumeNext([&] {
        struct stat found {};
        if (stat(HostPathBytes(path).c_str(), &found) == 0)
            status = found;
    });
    return status;
}

void CopyContent(const QString& source, BinaryOutput& copy)
{
    constexpr qsizetype blockSize = 1 << 20;
    BinaryInput input(source);
    QByteArray block(blockSize, Qt::Uninitialized);
    for (qint64 left = FileLength(source); left > 0;) {
        const qsizetype length = static_cast<qsizetype>(std::min<qint64>(left, blockSize));
        input.Read(block, length);
        copy.Write(block, length);
        left -= length;
    }
    copy.Close();
}

} // namespace

void DeleteFile(const QString& path)
{
    if (const int number = Unlink(HostPathBytes(path)))
        Fail(number);
}

void DeleteFilesMatching(const QString& pattern)
{
    const MatchingNames matching = NamesMatching(pattern);
    if (matching.names.empty())
        Fail(failure::fileNotFound);
    const auto folder = matching.folder.on->HostPath(matching.folder.path);
    if (!folder)
        Fail(failure::pathFileAccess);
    int firstFailure = 0;
    for (const std::string& name : matching.names) {
        const int number = Unlink(*folder + '/' + name);
        if (firstFailure == 0)
            firstFailure = number;
    }
    if (firstFailure != 0)
        Fail(firstFailure);
}

void RemoveFolder(const QString& path)
{
    const std::string hostPath = HostPathBytes(path);
    if (rmdir(hostPath.c_str()) != 0) {
        if (errno == ENOENT)
            Fail(failure::pathNotFound);
        const bool isDenied = errno == EACCES || errno == EPERM;
        Fail(isDenied ? failure::permissionDenied : failure::pathFileAccess);
    }
    NameRemoved(hostPath);
}

void ReplaceByCopy(const QString& source, const QString& target)
{
    if (IsSameFile(source, target))
        Fail(failure::pathFileAccess);
    const auto status = StatusOf(source);
    const std::string hostTarget = HostPathBytes(target);
    const std::string unfinished = hostTarget + ".part";
    if (!status)
        FileLength(source); // says why
    constexpr unsigned permissions = 0777;
    try {
        BinaryOutput copy(unfinished, status ? status->st_mode & permissions : permissions);
        CopyContent(source, copy);
        if (rename(unfinished.c_str(), hostTarget.c_str()) != 0)
            Fail(errno == EISDIR ? failure::pathFileAccess : FailureOfSystem(errno, hostTarget));
    } catch (const RunTimeError&) {
        Unlink(unfinished);
        throw;
    }
    NameRemoved(unfinished);
}

bool IsSameFile(const QString& one, const QString& other)
{
    const auto first = StatusOf(one);
    const auto second = StatusOf(other);
    return first && second && first->st_dev == second->st_dev && first->st_ino == second->st_ino;
}

} // namespace torvik
