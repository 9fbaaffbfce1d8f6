#include "platform/files/files.h"

#include "platform/files/file_content.h"
#include "platform/folders/case_insensitive_lookup.h"
#include "platform/folders/folder_index.h"
#include "platform/folders/host_name.h"
#include "platform/folders/name_pattern.h"
#include "platform/paths/drives.h"
#include "platform/paths/matching_names.h"
#include "runtime/failure.h"
#include "runtime/logging.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

EntryStatus EntryAt(const QString& path)
{
    const Place place = PlaceOf(path);
    return place.on->Status(place.path);
}

/// A number that is the same for names that differ in letter case alone, and mostly for no others.
std::size_t CaseBlindHash(const std::string& name)
{
    std::size_t hash = 14695981039346656037U;
    for (const char character : IsAscii(name) ? name : FoldedName(name)) {
        const bool isUpper = character >= 'A' && character <= 'Z';
        hash = (hash ^ static_cast<unsigned char>(isUpper ? character + ('a' - 'A') : character)) *
               1099511628211U;
    }
    return hash;
}

/// Of names that differ in letter case alone leaves the first in binary order; the order stays.
void DropCaseClashes(std::vector<std::string>& names)
{
    struct Hashed {
        std::size_t hash;
        std::size_t index;
    };
    std::vector<Hashed> hashes(names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        hashes[i] = {CaseBlindHash(names[i]), i};
    std::sort(hashes.begin(), hashes.end(), [](const Hashed& a, const Hashed& b) { return a.hash < b.hash; });
    for (std::size_t first = 0; first < hashes.size(); ++first) {
        for (std::size_t next = first + 1; next < hashes.size() && hashes[next].hash == hashes[first].hash;
             ++next) {
            std::string& one = names[hashes[first].index];
            std::string& other = names[hashes[next].index];
            if (one.empty() || other.empty() || FoldedName(one) != FoldedName(other))
                continue;
            (one < other ? other : one).clear();
        }
    }
    std::erase(names, std::string());
}

/// What tells a folder of a disc image from others: which image stands in the drive, and when the folder was
/// written.
QString MarkInImage(const QString& path)
{
    QString mark;
    ResumeNext([&] {
        const Place place = PlaceOf(path);
        const EntryStatus status = place.on->Status(place.path);
        if (status.isFolder)
            mark = u"%1 %2"_s.arg(place.on->Number()).arg(status.written);
    });
    return mark;
}

} // namespace

QStringList FilesMatching(const QString& pattern)
{
    std::vector<std::string> names = NamesMatching(pattern).names;
    DropCaseClashes(names);
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(names.size()));
    for (const std::string& name : names)
        texts.append(NameFromHost(name));
    return texts;
}

QString FindFile(const QString& patternOrPath)
{
    if (NamePattern::HasWildcards(QStringView(patternOrPath).mid(BeginOfName(patternOrPath)))) {
        const QStringList names = FilesMatching(patternOrPath);
        QString first = names.isEmpty() ? QString() : names.first();
        qCDebug(logFiles, "%s: %d found%s%s", qUtf8Printable(patternOrPath), int(names.size()),
                first.isEmpty() ? "" : ", the first is ", qUtf8Printable(first));
        return first;
    }
    const Place place = PlaceOf(patternOrPath);
    // A flag of its own: GCC 12 drops the initial value of a structure that a call would have filled but for
    // its failure.
    bool isFile = false;
    ResumeNext([&] { isFile = place.on->Status(place.path).isFile; });
    if (!isFile)
        return {};
    return NameFromHost(std::string_view(place.path).substr(place.path.rfind('/') + 1));
}

bool FileExists(const QString& path)
{
    bool isFile = false;
    ResumeNext([&] { isFile = EntryAt(path).isFile; });
    return isFile;
}

qint64 FileLength(const QString& path)
{
    const EntryStatus status = EntryAt(path);
    if (!status.isFile)
        Fail(failure::fileNotFound);
    return status.length;
}

QByteArray ReadFile(const QString& path)
{
    return FileToRead(path)();
}

std::function<QByteArray()> FileToRead(const QString& path)
{
    return [place = PlaceOf(path)] { return ContentOf(place); };
}

QString FolderMark(const QString& path)
{
    std::optional<FolderStamp> stamp;
    ResumeNext([&] { stamp = StampOf(HostPathBytes(path)); });
    if (!stamp)
        return MarkInImage(path);
    return u"%1 %2 %3.%4 %5.%6"_s.arg(stamp->device)
        .arg(stamp->number)
        .arg(stamp->written.tv_sec)
        .arg(stamp->written.tv_nsec)
        .arg(stamp->altered.tv_sec)
        .arg(stamp->altered.tv_nsec);
}

void MakeFolder(const QString& path)
{
    const std::string hostPath = HostPathBytes(path);
    if (mkdir(hostPath.c_str(), 0777) != 0) {
        const bool isParentMissing = errno == ENOENT || errno == ENOTDIR;
        Fail(isParentMissing ? failure::pathNotFound : failure::pathFileAccess);
    }
    NameAdded(hostPath);
}

} // namespace torvik
