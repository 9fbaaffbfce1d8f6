#include "platform/paths/drives.h"

#include "platform/paths/host_name.h"
#include "platform/paths/path_lookup.h"
#include "platform/paths/program_folder.h"
#include "platform/paths/volumes.h"
#include "runtime/failure.h"
#include "runtime/logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr char16_t firstLetter = u'D';
constexpr char16_t lastLetter = u'Z';

/// The host's folder of each letter from D to Z, without a closing slash; empty where there is none.
/// The host's root is "/" here.
using DriveTable = std::array<std::string, lastLetter - firstLetter + 1>;

DriveTable ofOptions;
DriveTable drives;
VolumeLister volumeLister = nullptr;

std::size_t Place(QChar letter)
{
    return static_cast<std::size_t>(letter.unicode() - firstLetter);
}

bool IsDriveLetter(QChar letter)
{
    return letter >= firstLetter && letter <= lastLetter;
}

/// Gives the first free letter to the folder; with all letters taken the folder gets none.
void PutAtFirstFree(DriveTable& table, const std::string& folder)
{
    const auto free = std::find(table.begin(), table.end(), std::string());
    if (free != table.end())
        *free = folder;
}

std::string AbsoluteFolder(const QString& folder)
{
    return NameToHost(QDir::cleanPath(QDir::current().absoluteFilePath(folder)));
}

/// The folder of a letter as the beginning of a path: the root is the empty text. Failure 68 when there is
/// none.
std::string DriveRoot(QChar letter)
{
    const QChar upper = letter.toUpper();
    if (upper == u'C')
        return {};
    if (!IsDriveLetter(upper) || drives[Place(upper)].empty())
        Fail(failure::deviceUnavailable);
    const std::string& folder = drives[Place(upper)];
    return folder == "/" ? std::string() : folder;
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
    const std::size_t rootLength = path.size();
    qsizetype begin = 0;
    while (begin < components.size()) {
        qsizetype end = begin;
        while (end < components.size() && components[end] != u'\\' && components[end] != u'/')
            ++end;
        const QStringView component = components.mid(begin, end - begin);
        begin = end + 1;
        if (component == u"..") {
            if (path.size() > rootLength)
                path.resize(path.rfind('/'));
        } else if (!component.isEmpty() && component != u".") {
            path.push_back('/');
            path += NameToHost(component);
        }
    }
}

void LogLookUp(const QString& drivePath, const QString& found)
{
    qCDebug(logFiles, "%s is %s%s", qUtf8Printable(drivePath), qUtf8Printable(found),
            QFileInfo::exists(found) ? "" : ", which is not there");
}

} // namespace

void SetDriveOptions(const QList<DriveOption>& options)
{
    DriveTable table;
    for (const DriveOption& option : options) {
        if (option.Letter.isNull())
            continue;
        if (!IsDriveLetter(option.Letter.toUpper()))
            Fail(failure::invalidCall);
        table[Place(option.Letter.toUpper())] = AbsoluteFolder(option.Folder);
    }
    for (const DriveOption& option : options) {
        if (option.Letter.isNull())
            PutAtFirstFree(table, AbsoluteFolder(option.Folder));
    }
    ofOptions = table;
    drives = table;
    ForgetFolders();
}

void RefreshDrives()
{
    ForgetFolders();
    drives = ofOptions;
    const QList<QString> volumes = volumeLister ? volumeLister() : MountedMedia();
    for (const QString& volume : volumes)
        PutAtFirstFree(drives, NameToHost(volume));

    std::string& last = drives.back();
    if (!last.empty())
        return;
    // An installed disc lies beside the executable, where the program folder need not be.
    for (const QString& folder : {ProgramFolder(), DrivePath(QCoreApplication::applicationDirPath())}) {
        const std::string embedded = HostPathBytes(folder + u"\\disc"_s);
        if (QDir(HostText(embedded)).exists()) {
            last = embedded;
            return;
        }
    }
}

QString DriveFolder(QChar letter)
{
    const QChar upper = letter.toUpper();
    if (upper == u'C')
        return u"/"_s;
    return IsDriveLetter(upper) ? HostText(drives[Place(upper)]) : QString();
}

void SetVolumeLister(VolumeLister lister)
{
    volumeLister = lister;
}

std::string HostPathBytes(const QString& drivePath)
{
    if (!IsDrivePath(drivePath))
        Fail(failure::badFileName);
    std::string path = DriveRoot(drivePath[0]);
    const std::string root = path;
    path.reserve(root.size() + static_cast<std::size_t>(drivePath.size()));
    AppendComponents(path, QStringView(drivePath).mid(3));
    std::string found = SpellingOnHost(root, path);
    if (found.empty())
        found = "/";
    if (logFiles().isDebugEnabled())
        LogLookUp(drivePath, HostText(found));
    return found;
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
