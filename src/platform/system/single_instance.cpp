#include "platform/system/single_instance.h"

#include "platform/paths/program_folder.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The open lock file of the running instance, -1 while this process is none. The lock belongs to the open
/// file, so the system itself gives it up when the process ends; the file may stay.
int claim = -1;

/// The part that differs from system to system: opens and locks the file without waiting. Gives the open
/// file, or -1 when another process holds it (`isHeld`) or no lock can be had at all.
int LockFile(const QString& file, bool& isHeld)
{
    const int descriptor = open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return -1;
    int outcome = 0;
    do {
        outcome = flock(descriptor, LOCK_EX | LOCK_NB);
    } while (outcome != 0 && errno == EINTR);
    if (outcome == 0)
        return descriptor;
    isHeld = errno == EWOULDBLOCK;
    close(descriptor);
    return -1;
}

} // namespace

bool PreviousInstance()
{
    if (claim >= 0)
        return false;
    bool isHeld = false;
    claim = LockFile(UserDataFolder() + u"/running.lock"_s, isHeld);
    return isHeld;
}

void ReleaseInstance()
{
    if (claim >= 0)
        close(std::exchange(claim, -1));
}

} // namespace torvik
