#pragma once

#include <QString>

#include <functional>

namespace torvik {

/// How a file system counts its room.
struct DiskClusters {
    qint64 sectorsPerCluster = 0;
    qint64 bytesPerSector = 0;
    qint64 free = 0;  ///< clusters that this user may still fill
    qint64 total = 0; ///< clusters in all
};

/// The room of the file system that holds a folder (a drive path). Failures: 76 when it is missing, 70 when
/// it may not be asked, 68 Device unavailable, 57 Device I/O error.
DiskClusters DiskClustersOf(const QString& folder);

/// Measures in place of the machine, for the tests; an empty one brings the machine's own answers back.
using DiskMeter = std::function<DiskClusters(const QString& folder)>;
void SetDiskMeter(DiskMeter meter);

/// The current directory of the program, as a drive path. Failure 76 when it is gone.
QString CurrentFolder();

} // namespace torvik
