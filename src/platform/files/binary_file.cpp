#include "platform/files/binary_file.h"

#include "platform/folders/case_insensitive_lookup.h"
#include "platform/folders/system_failure.h"
#include "platform/paths/drives.h"
#include "runtime/failure.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace torvik {

namespace {

/// At the machine's limit for the size of a file the system would end the program; ignored, the signal
/// becomes an error of the write.
void TellFullFilesByError()
{
    static const bool ignored = [] { return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR; }();
    Q_UNUSED(ignored)
}

} // namespace

BinaryInput::BinaryInput(const QString& path)
{
    const Place place = PlaceOf(path);
    file_ = place.on->Open(place.path);
}

void BinaryInput::Read(QByteArray& buffer, qsizetype length)
{
    for (qsizetype filled = 0; filled < length;) {
        const qsizetype got = file_->Read(buffer.data() + filled, length - filled);
        if (got == 0)
            Fail(failure::inputPastEnd);
        filled += got;
    }
}

BinaryOutput::BinaryOutput(const QString& path) : BinaryOutput(HostPathBytes(path), 0666) {}

BinaryOutput::BinaryOutput(const std::string& hostPath, unsigned mode) : path_(hostPath)
{
    TellFullFilesByError();
    // Without O_NONBLOCK the opening of a pipe that nobody reads would never come back.
    constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    descriptor_ = open(path_.c_str(), flags, mode);
    if (descriptor_ < 0)
        Fail(errno == ENXIO ? failure::pathFileAccess : FailureOfSystem(errno, path_));
    struct stat status {};
    if (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) {
        close(std::exchange(descriptor_, -1));
        Fail(failure::pathFileAccess);
    }
    NameAdded(path_);
}

BinaryOutput::~BinaryOutput()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

void BinaryOutput::Write(const QByteArray& buffer, qsizetype length)
{
    for (qsizetype written = 0; written < length;) {
        const ssize_t taken =
            write(descriptor_, buffer.constData() + written, static_cast<std::size_t>(length - written));
        if (taken >= 0)
            written += taken;
        else if (errno != EINTR)
            Fail(FailureOfSystem(errno, path_));
    }
}

void BinaryOutput::Close()
{
    if (descriptor_ >= 0 && close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR)
        Fail(FailureOfSystem(errno, path_));
}

} // namespace torvik
