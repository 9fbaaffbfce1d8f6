#include "platform/paths/mounted_media.h"

#include "platform/folders/host_name.h"
#include "runtime/logging.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

std::string_view View(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

template <std::size_t n>
bool IsOneOf(const std::array<std::string_view, n>& known, const QByteArray& word)
{
    return std::find(known.begin(), known.end(), View(word)) != known.end();
}

/// Whether `path` is one of the folders or lies inside it.
template <std::size_t n>
bool LiesIn(const std::array<std::string_view, n>& folders, std::string_view path)
{
    return std::any_of(folders.begin(), folders.end(), [path](std::string_view folder) {
        return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
    });
}

/// Why a volume is no medium; null when it looks like one.
const char* WhyNoMedium(const MountedVolume& volume, RemovableTest isRemovable)
{
    constexpr std::array<std::string_view, 3> optical{"iso9660", "udf", "fuse.fuseiso"};
    // What is not named here, a pseudo file system or a network share, is no medium wherever it is mounted.
    constexpr std::array<std::string_view, 20> ofDisks{
        "ext2",  "ext3",    "ext4", "xfs",     "btrfs", "f2fs",     "vfat", "msdos",    "exfat", "ntfs",
        "ntfs3", "fuseblk", "hfs",  "hfsplus", "jfs",   "reiserfs", "ufs",  "bcachefs", "zfs",   "apfs"};
    constexpr std::array<std::string_view, 8> ofTheSystem{"/boot", "/efi",  "/usr",  "/var",
                                                          "/etc",  "/home", "/snap", "/root"};
    constexpr std::array<std::string_view, 3> ofDesktops{"/media", "/run/media", "/mnt"};
    const QByteArray point = QFile::encodeName(volume.mountPoint);
    if (!point.startsWith('/'))
        return "its folder cannot be reached";
    if (point == "/")
        return "it is the root of the system";
    if (IsOneOf(optical, volume.fileSystem))
        return nullptr;
    if (!IsOneOf(ofDisks, volume.fileSystem))
        return "its file system is not that of a disk or disc";
    if (LiesIn(ofTheSystem, View(point)))
        return "the system itself lives there";
    if (LiesIn(ofDesktops, View(point)) || volume.device.startsWith("/dev/loop") ||
        isRemovable(volume.device))
        return nullptr;
    return "its device stays in the machine";
}

bool ReadFlag(const QString& file)
{
    QFile flag(file);
    return flag.open(QIODevice::ReadOnly) && flag.read(1) == "1";
}

bool IsRemovableDevice(const QByteArray& device)
{
    const QString name = QFileInfo(QFileInfo(QFile::decodeName(device)).canonicalFilePath()).fileName();
    const QString folder = u"/sys/class/block/"_s + name;
    // A partition has no such file of its own; it lies in the folder of its disk.
    return !name.isEmpty() && (ReadFlag(folder + u"/removable"_s) || ReadFlag(folder + u"/../removable"_s));
}

} // namespace

QList<QString> MediaAmong(const QList<MountedVolume>& volumes, RemovableTest isRemovable)
{
    // Volumes may be mounted over each other, and their order does not tell which one is on top. A folder
    // that shows no disc after all costs a letter and no more.
    std::set<std::string> points;
    for (const MountedVolume& volume : volumes) {
        const char* reason = WhyNoMedium(volume, isRemovable);
        qCDebug(logDisc, "volume %s (%s, %s): %s", qUtf8Printable(volume.mountPoint),
                volume.fileSystem.constData(), volume.device.constData(),
                reason == nullptr ? "looks like a medium" : reason);
        if (reason == nullptr)
            points.insert(QFile::encodeName(volume.mountPoint).toStdString());
    }
    QList<QString> media;
    for (const std::string& point : points)
        media.append(HostText(point));
    return media;
}

QList<QString> MountedMedia()
{
    constexpr std::chrono::seconds patience{3};
    const auto volumes = ReadInTime(MountedVolumes, patience);
    if (!volumes)
        qCDebug(logDisc) << "the list of volumes does not come; one of them does not answer";
    return MediaAmong(volumes.value_or(QList<MountedVolume>()), IsRemovableDevice);
}

} // namespace torvik
