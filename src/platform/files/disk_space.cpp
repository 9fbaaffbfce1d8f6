#include "platform/files/disk_space.h"

#include "platform/folders/host_name.h"
#include "platform/folders/system_failure.h"
#include "platform/paths/drives.h"
#include "runtime/failure.h"

#include <cerrno>
#include <climits>
#include <string>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace torvik {

namespace {

constexpr qint64 sectorSize = 512; // bytes

DiskMeter& Meter()
{
    static DiskMeter meter;
    return meter;
}

} // namespace

DiskClusters DiskClustersOf(const QString& folder)
{
    if (Meter())
        return Meter()(folder);
    const std::string hostPath = HostPathBytes(folder);
    struct statvfs status {};
    if (statvfs(hostPath.c_str(), &status) != 0) {
        const int number = FailureOfSystem(errno, hostPath);
        Fail(number == failure::fileNotFound ? failure::pathNotFound : number);
    }
    DiskClusters clusters;
    clusters.bytesPerSector = sectorSize;
    clusters.sectorsPerCluster = static_cast<qint64>(status.f_frsize) / sectorSize;
    clusters.free = static_cast<qint64>(status.f_bavail);
    clusters.total = static_cast<qint64>(status.f_blocks);
    return clusters;
}

void SetDiskMeter(DiskMeter meter)
{
    Meter() = std::move(meter);
}

QString CurrentFolder()
{
    std::string folder(PATH_MAX, '\0');
    if (getcwd(folder.data(), folder.size()) == nullptr)
        Fail(failure::pathNotFound);
    folder.resize(folder.find('\0'));
    return DrivePath(HostText(folder));
}

} // namespace torvik
