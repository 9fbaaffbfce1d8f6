#include "platform/paths/host_file.h"

#include "platform/folders/system_failure.h"
#include "runtime/failure.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace torvik {

HostFile::HostFile(const std::string& hostPath) : path_(hostPath)
{
    // Without O_NONBLOCK the opening of a pipe that nobody writes to would never come back.
    descriptor_ = open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor_ < 0)
        Fail(FailureOfSystem(errno, path_));
    struct stat status {};
    if (fstat(descriptor_, &status) != 0)
        CloseAndFail(FailureOfSystem(errno, path_));
    if (!S_ISREG(status.st_mode))
        CloseAndFail(failure::pathFileAccess);
    length_ = status.st_size;
}

HostFile::~HostFile()
{
    close(descriptor_);
}

void HostFile::CloseAndFail(int number)
{
    close(std::exchange(descriptor_, -1));
    Fail(number);
}

qsizetype HostFile::Read(char* target, qsizetype room)
{
    for (;;) {
        const ssize_t got = read(descriptor_, target, static_cast<std::size_t>(room));
        if (got >= 0)
            return got;
        if (errno != EINTR)
            Fail(FailureOfSystem(errno, path_));
    }
}

void HostFile::SeekTo(qint64 place)
{
    if (lseek(descriptor_, static_cast<off_t>(place), SEEK_SET) < 0)
        Fail(FailureOfSystem(errno, path_));
}

} // namespace torvik
