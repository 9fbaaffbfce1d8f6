#include "platform/paths/drives.h"

#include "platform/folders/case_insensitive_lookup.h"
#include "platform/folders/host_name.h"
#include "platform/paths/folder_volume.h"
#include "platform/paths/image_volume.h"
#include "platform/paths/mounted_media.h"
#include "platform/paths/program_folder.h"
#include "runtime/failure.h"
#include "runtime/logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr char16_t firstLetter = u'D';
constexpr char16_t lastLetter = u'Z';

/// What a letter stands for: the host's folder or image, without a closing slash but for the root "/".
struct Drive {
    std::string host; ///< empty when the letter stands for nothing
    std::shared_ptr<const Volume> volume;
};
using DriveTable = std::array<Drive, lastLetter - firstLetter + 1>;
using HostTable = std::array<std::string, lastLetter - firstLetter + 1>;

HostTable ofOptions;
DriveTable drives;
VolumeLister volumeLister = nullptr;

std::size_t IndexOf(QChar letter)
{
    return static_cast<std::size_t>(letter.unicode() - firstLetter);
}

bool IsDriveLetter(QChar letter)
{
    return letter >= firstLetter && letter <= lastLetter;
}

/// Gives the first free letter to the folder; with all letters taken the folder gets none.
void PutAtFirstFree(HostTable& table, const std::string& folder)
{
    const auto free = std::find(table.begin(), table.end(), std::string());
    if (free != table.end())
        *free = folder;
}

std::string AbsoluteFolder(const QString& folder)
{
    return NameToHost(QDir::cleanPath(QDir::current().absoluteFilePath(folder)));
}

/// What is a file is the image of a disc; all else is a folder, also one that is not there at present.
std::shared_ptr<const Volume> VolumeAt(const std::string& host)
{
    struct stat status {};
    if (stat(host.c_str(), &status) == 0 && S_ISREG(status.st_mode))
        return std::make_shared<ImageVolume>(host);
    return std::make_shared<FolderVolume>(host == "/" ? std::string() : host);
}

DriveTable DrivesOf(const HostTable& hosts)
{
    DriveTable table;
    for (std::size_t place = 0; place < hosts.size(); ++place) {
        if (!hosts[place].empty())
            table[place] = {hosts[place], VolumeAt(hosts[place])};
    }
    return table;
}

/// Failure 68 when the letter stands for nothing.
std::shared_ptr<const Volume> VolumeOf(QChar letter)
{
    static const std::shared_ptr<const Volume> host = std::make_shared<FolderVolume>(std::string());
    const QChar upper = letter.toUpper();
    if (upper == u'C')
        return host;
    if (!IsDriveLetter(upper) || !drives[IndexOf(upper)].volume)
        Fail(failure::deviceUnavailable);
    return drives[IndexOf(upper)].volume;
}

bool IsDrivePath(QStringView path)
{
    if (path.size() < 3 || path[1] != u':' || path[2] != u'\\' || path.contains(QChar(u'\0')))
        return false;
    const char16_t letter = path[0].toUpper().unicode();
    return path[0].unicode() < 0x80 && letter >= u'A' && letter <= u'Z';
}

/// Adds what stands behind the drive's letter to `path`, component by component.
void AppendComponents(std::string& path, QStringView components)
{
    qsizetype begin = 0;
    while (begin < components.size()) {
        qsizetype end = begin;
        while (end < components.size() && components[end] != u'\\' && components[end] != u'/')
            ++end;
        const QStringView component = components.mid(begin, end - begin);
        begin = end + 1;
        if (component == u"..") {
            if (!path.empty())
                path.resize(path.rfind('/'));
        } else if (!component.isEmpty() && component != u".") {
            path.push_back('/');
            path += NameToHost(component);
        }
    }
}

void LogLookUp(const QString& drivePath, const Place& place)
{
    const auto host = place.on->HostPath(place.path);
    const QString found =
        host ? HostText(host->empty() ? "/" : *host) : DriveFolder(drivePath[0]) + HostText(place.path);
    const bool isThere = ResumeNext([&] { place.on->Status(place.path); }) == 0;
    qCDebug(logFiles, "%s is %s%s", qUtf8Printable(drivePath), qUtf8Printable(found),
            isThere ? "" : ", which is not there");
}

/// The folder "disc" or the image "disc.iso" in the program folder, else beside the executable: an installed
/// disc lies there, where the program folder need not be. Empty when there is none.
std::string EmbeddedDisc()
{
    for (const QString& folder : {ProgramFolder(), DrivePath(QCoreApplication::applicationDirPath())}) {
        std::string disc = HostPathBytes(folder + u"\\disc"_s);
        if (QFileInfo(HostText(disc)).isDir())
            return disc;
        std::string image = HostPathBytes(folder + u"\\disc.iso"_s);
        if (QFileInfo(HostText(image)).isFile())
            return image;
    }
    return {};
}

} // namespace

void SetDriveOptions(const QList<DriveOption>& options)
{
    HostTable table;
    for (const DriveOption& option : options) {
        if (option.letter.isNull())
            continue;
        if (!IsDriveLetter(option.letter.toUpper()))
            Fail(failure::invalidCall);
        table[IndexOf(option.letter.toUpper())] = AbsoluteFolder(option.folder);
    }
    for (const DriveOption& option : options) {
        if (option.letter.isNull())
            PutAtFirstFree(table, AbsoluteFolder(option.folder));
    }
    ofOptions = table;
    drives = DrivesOf(table);
    ForgetFolders();
}

void RefreshDrives()
{
    ForgetFolders();
    HostTable hosts = ofOptions;
    const QList<QString> volumes = volumeLister ? volumeLister() : MountedMedia();
    for (const QString& volume : volumes)
        PutAtFirstFree(hosts, NameToHost(volume));
    if (hosts.back().empty())
        hosts.back() = EmbeddedDisc();
    drives = DrivesOf(hosts);
}

QString DriveFolder(QChar letter)
{
    const QChar upper = letter.toUpper();
    if (upper == u'C')
        return u"/"_s;
    return IsDriveLetter(upper) ? HostText(drives[IndexOf(upper)].host) : QString();
}

void SetVolumeLister(VolumeLister lister)
{
    volumeLister = lister;
}

Place UnspelledPlaceOf(const QString& drivePath)
{
    if (!IsDrivePath(drivePath))
        Fail(failure::badFileName);
    Place place{VolumeOf(drivePath[0]), {}};
    place.path.reserve(static_cast<std::size_t>(drivePath.size()));
    AppendComponents(place.path, QStringView(drivePath).mid(3));
    return place;
}

Place PlaceOf(const QString& drivePath)
{
    Place place = UnspelledPlaceOf(drivePath);
    place.path = place.on->Spelling(place.path);
    if (logFiles().isDebugEnabled())
        LogLookUp(drivePath, place);
    return place;
}

std::string HostPathBytes(const QString& drivePath)
{
    const Place place = PlaceOf(drivePath);
    const auto found = place.on->HostPath(place.path);
    if (!found)
        Fail(failure::pathFileAccess);
    return found->empty() ? std::string("/") : *found;
}

QString HostPath(const QString& drivePath)
{
    return HostText(HostPathBytes(drivePath));
}

QString DrivePath(const QString& hostPath)
{
    const std::string absolute = AbsoluteFolder(hostPath);
    QString path = u"C:"_s;
    for (std::size_t begin = 1; begin < absolute.size();) {
        const std::size_t end = std::min(absolute.find('/', begin), absolute.size());
        path += u'\\' + NameFromHost(std::string_view(absolute).substr(begin, end - begin));
        begin = end + 1;
    }
    return path.size() == 2 ? path + u'\\' : path;
}

} // namespace torvik
