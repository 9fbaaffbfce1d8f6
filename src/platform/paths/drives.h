#pragma once

#include "platform/paths/volume.h"

#include <QList>
#include <QString>

#include <string>

namespace torvik {

/// Inside the program every path is a drive path, "E:\Torviks\67A.JPG". This file owns what the letters mean
/// on the machine that the program runs on: C: is the root of the host, the other letters from D to Z stand
/// for folders and disc images that were named on the command line, for mounted media, and for the embedded
/// disc.

/// One letter given on the command line.
struct DriveOption {
    QChar letter;   ///< 'D' to 'Z', or a null QChar for "the first free letter from D"
    QString folder; ///< a folder or a disc image of the host
};

/// Sets the drives of the command line; they hold at once. A later option for the same letter wins; options
/// without a letter take what the others leave. A letter outside D to Z is failure 5.
void SetDriveOptions(const QList<DriveOption>& options);

/// Finds out anew which letter stands for which folder or image: the options first, then the mounted volumes
/// that look like media (in the order of their mount points), last Z: for the folder "disc" or the image
/// "disc.iso" in the program folder or, else, beside the executable, where there is one and Z is free. Images
/// are closed. Called at the start of each scan for the disc, so that Retry sees a new disc.
void RefreshDrives();

/// The host's folder or image behind a letter ('C' gives the root); empty when the letter stands for nothing.
QString DriveFolder(QChar letter);

/// Where mounted media are looked for; tests put a list of their own here. An empty function brings the
/// machine's own back.
using VolumeLister = QList<QString> (*)();
void SetVolumeLister(VolumeLister lister);

/// Where a drive path leads. Letter case is ignored in every component, an exact match first; the part
/// that does not exist is kept as it is written, so the result can also name a file that is yet to be made.
/// "." and ".." are followed, but never out of the drive. A drive letter that stands for nothing, or for a
/// folder or an image that is no longer there, is failure 68, Device unavailable; a text that is no drive
/// path (no letter, colon and backslash at its beginning, or a zero character in it) is failure 52, Bad file
/// name or number.
Place PlaceOf(const QString& drivePath);

/// The same before anything is looked up: the path stands as it is written. Touches no medium, so that a
/// thread of its own can look up what is on a slow one.
Place UnspelledPlaceOf(const QString& drivePath);

/// The host path for a drive path; the same rules and failures. On an image there is none: failure 75,
/// Path/File access error, as for all that would write to a disc.
QString HostPath(const QString& drivePath);

/// The same in the bytes of the host, by which also a file is reached whose name is no valid UTF-8.
std::string HostPathBytes(const QString& drivePath);

/// The drive path for a path of the host, by the C: drive: "/opt/torvik" gives "C:\opt\torvik", "/" gives
/// "C:\".
QString DrivePath(const QString& hostPath);

} // namespace torvik
