#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <chrono>
#include <optional>

namespace torvik {

/// A mounted volume, as far as it tells what kind of medium it is.
struct MountedVolume {
    QString mountPoint;    ///< a folder of the host
    QByteArray fileSystem; ///< "iso9660", "vfat"
    QByteArray device;     ///< "/dev/sr0"
};

using VolumeReader = QList<MountedVolume> (*)();

/// The volumes that Qt lists, in no certain order. Qt asks each one for its size, so a network share whose
/// server is gone keeps the caller waiting.
QList<MountedVolume> MountedVolumes();

/// What `reader` gives, if it does so in time; nothing when it does not. The reader runs on a thread of its
/// own, which touches nothing of the program; while one is stuck no second one is started.
std::optional<QList<MountedVolume>> ReadInTime(VolumeReader reader, std::chrono::milliseconds patience);

} // namespace torvik
