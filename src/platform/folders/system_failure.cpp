#include "platform/folders/system_failure.h"

#include "runtime/failure.h"

#include <cerrno>
#include <sys/stat.h>

namespace torvik {

namespace {

int FailureOfMissing(const std::string& hostPath)
{
    const std::size_t slash = hostPath.rfind('/');
    if (slash == 0 || slash == std::string::npos)
        return failure::fileNotFound;
    struct stat status {};
    const bool hasFolder = stat(hostPath.substr(0, slash).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    return hasFolder ? failure::fileNotFound : failure::pathNotFound;
}

} // namespace

int FailureOfSystem(int error, const std::string& hostPath)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
        return FailureOfMissing(hostPath);
    case EACCES:
    case EPERM:
        return failure::permissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return failure::diskFull;
    case EIO:
        return failure::deviceIo;
    case EEXIST:
        return failure::fileExists;
    case EMFILE:
    case ENFILE:
        return failure::tooManyFiles;
    case ENODEV:
    case ENXIO:
    case ENOMEDIUM:
    case ESTALE:
        return failure::deviceUnavailable;
    case ENOMEM:
        return failure::outOfMemory;
    default:
        return failure::pathFileAccess;
    }
}

} // namespace torvik
