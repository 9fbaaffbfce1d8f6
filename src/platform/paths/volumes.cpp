#include "platform/paths/volumes.h"

#include "platform/paths/host_name.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

struct Mount {
    QByteArray device; ///< "MAJOR:MINOR"
    std::string point;
    QByteArray type;
    QByteArray source;
};

/// Undoes the table's way of writing blanks and backslashes, "\040".
std::string Plain(const QByteArray& field)
{
    std::string text;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int code = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        if (isOctal && i + 3 < field.size()) {
            text.push_back(static_cast<char>(code));
            i += 3;
        } else {
            text.push_back(field[i]);
        }
    }
    return text;
}

/// Reads one line: "36 35 8:1 / /media/disc ro,nosuid shared:1 - iso9660 /dev/sr0 ro". False when it is none.
bool ReadMount(const QByteArray& line, Mount& mount)
{
    const QList<QByteArray> fields = line.split(' ');
    const qsizetype dash = fields.indexOf(QByteArrayLiteral("-"), 5);
    if (dash < 0 || dash + 2 >= fields.size())
        return false;
    mount = {fields[2], Plain(fields[4]), fields[dash + 1], fields[dash + 2]};
    return mount.point.starts_with('/');
}

/// Whether `path` is one of the folders or lies inside it.
template <std::size_t N>
bool LiesIn(const std::array<std::string_view, N>& folders, const std::string& path)
{
    return std::any_of(folders.begin(), folders.end(), [&path](std::string_view folder) {
        return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
    });
}

bool IsOptical(const Mount& mount)
{
    return mount.type == "iso9660" || mount.type == "udf" || mount.type == "fuse.fuseiso";
}

/// The file systems of disks and sticks. What is not named here, a pseudo file system or a network share, is
/// no medium wherever it is mounted.
bool IsOfDisks(const QByteArray& type)
{
    constexpr std::array<std::string_view, 20> types{
        "ext2",  "ext3",    "ext4", "xfs",     "btrfs", "f2fs",     "vfat", "msdos",    "exfat", "ntfs",
        "ntfs3", "fuseblk", "hfs",  "hfsplus", "jfs",   "reiserfs", "ufs",  "bcachefs", "zfs",   "apfs"};
    return std::any_of(types.begin(), types.end(), [&type](std::string_view known) {
        return QByteArrayView(known.data(), static_cast<qsizetype>(known.size())) == type;
    });
}

bool LooksLikeMedia(const Mount& mount, RemovableTest isRemovable)
{
    constexpr std::array<std::string_view, 8> ofTheSystem{"/boot", "/efi",  "/usr",  "/var",
                                                          "/etc",  "/home", "/snap", "/root"};
    constexpr std::array<std::string_view, 3> ofDesktops{"/media", "/run/media", "/mnt"};
    if (mount.point == "/")
        return false;
    if (IsOptical(mount))
        return true;
    if (!IsOfDisks(mount.type) || LiesIn(ofTheSystem, mount.point))
        return false;
    return LiesIn(ofDesktops, mount.point) || mount.source.startsWith("/dev/loop") ||
           isRemovable(mount.device);
}

bool ReadFlag(const QString& file)
{
    QFile flag(file);
    return flag.open(QIODevice::ReadOnly) && flag.read(1) == "1";
}

bool IsRemovableDevice(const QByteArray& device)
{
    const QString folder = u"/sys/dev/block/"_s + QString::fromLatin1(device);
    // A partition has no such file of its own; it lies in the folder of its disk.
    return ReadFlag(folder + u"/removable"_s) || ReadFlag(folder + u"/../removable"_s);
}

} // namespace

QList<QString> MediaInMountTable(const QByteArray& table, RemovableTest isRemovable)
{
    // What was mounted later over the same folder hides what was there.
    std::map<std::string, Mount> byPoint;
    const QList<QByteArray> lines = table.split('\n');
    for (const QByteArray& line : lines) {
        Mount mount;
        if (ReadMount(line, mount))
            byPoint[mount.point] = mount;
    }
    QList<QString> media;
    for (const auto& [point, mount] : byPoint) {
        if (LooksLikeMedia(mount, isRemovable))
            media.append(HostText(point));
    }
    return media;
}

QList<QString> MountedMedia()
{
    QFile table(u"/proc/self/mountinfo"_s);
    if (!table.open(QIODevice::ReadOnly))
        return {};
    return MediaInMountTable(table.readAll(), IsRemovableDevice);
}

} // namespace torvik
