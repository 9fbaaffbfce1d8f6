#pragma once

#include "platform/paths/mounted_volumes.h"

#include <QList>
#include <QString>

namespace torvik {

/// Which mounted volumes may carry a disc's content. This is the place to extend for other systems.

/// Whether the device, "/dev/sdb1", can be taken out of the machine.
using RemovableTest = bool (*)(const QByteArray& device);

/// The mount points, each once and in their order, of the volumes that look like media: optical discs,
/// removable devices, image files on a loop device, and what desktops mount under /media, /run/media and
/// /mnt. Pseudo file systems, network shares, packages of the system and the folders that the system itself
/// lives in are none.
QList<QString> MediaAmong(const QList<MountedVolume>& volumes, RemovableTest isRemovable);

/// The media of the machine; none when the list of volumes does not come within three seconds.
QList<QString> MountedMedia();

} // namespace torvik
