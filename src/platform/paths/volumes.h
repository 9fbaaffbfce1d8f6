#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace torvik {

/// Which mounted volumes may carry a disc's content. This is the place to extend for other systems.

/// Whether the block device "MAJOR:MINOR" can be taken out of the machine.
using RemovableTest = bool (*)(const QByteArray& device);

/// The mount points, in their order, of the volumes of a mount table (the text of /proc/self/mountinfo) that
/// look like media: optical discs, removable devices, image files on a loop device, and what desktops mount
/// under /media, /run/media and /mnt. Pseudo file systems, network shares, packages of the system and the
/// folders that the system itself lives in are none.
QList<QString> MediaInMountTable(const QByteArray& table, RemovableTest isRemovable);

/// The media of the machine. Reads the mount table alone and never touches the volumes, so that a network
/// share whose server is gone cannot hold it up.
QList<QString> MountedMedia();

} // namespace torvik
