#include "platform/image/image_bytes.h"

#include "runtime/failure.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace torvik {

ImageBytes::ImageBytes(const std::string& file)
{
    // Without O_NONBLOCK the opening of a pipe that nobody writes to would never come back.
    descriptor_ = open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    struct stat status {};
    if (descriptor_ < 0)
        Fail(failure::deviceUnavailable);
    if (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) {
        close(std::exchange(descriptor_, -1));
        Fail(failure::deviceUnavailable);
    }
    length_ = status.st_size;
}

ImageBytes::~ImageBytes()
{
    close(descriptor_);
}

qsizetype ImageBytes::Read(qint64 place, char* target, qsizetype room) const
{
    qsizetype filled = 0;
    while (filled < room) {
        const ssize_t got = pread(descriptor_, target + filled, static_cast<std::size_t>(room - filled),
                                  static_cast<off_t>(place + filled));
        if (got == 0)
            break;
        if (got > 0)
            filled += got;
        else if (errno != EINTR)
            Fail(failure::deviceIo);
    }
    return filled;
}

} // namespace torvik
