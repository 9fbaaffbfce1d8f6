// The names of 30,000 photos, listed, turned to capitals and sorted, against a bare pass over the folder with
// a sort.

#include "measure.h"
#include "platform/files/files.h"
#include "platform/paths/drives.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <dirent.h>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int photoCount = 30000;
constexpr int rounds = 15;
constexpr double limit = 3.0;

bool MakePhotos(const QString& folder)
{
    if (!QDir().mkpath(folder))
        return false;
    for (int i = 0; i < photoCount; ++i) {
        const QString name = u"%1tor%2.jpg"_s.arg(67 + i % 33).arg(i, 5, 10, QLatin1Char('0'));
        if (!QFile(folder + QLatin1Char('/') + name).open(QIODevice::WriteOnly))
            return false;
    }
    return true;
}

std::size_t BareNames(const std::string& folder)
{
    std::vector<std::string> names;
    DIR* const handle = opendir(folder.c_str());
    while (const dirent* const entry = readdir(handle))
        names.emplace_back(entry->d_name);
    closedir(handle);
    std::sort(names.begin(), names.end());
    return names.size() - 2;
}

std::size_t PhotoNames()
{
    QStringList names = torvik::FilesMatching(u"E:\\Torviks\\*.jpg"_s);
    for (QString& name : names)
        name = name.toUpper();
    std::sort(names.begin(), names.end());
    return static_cast<std::size_t>(names.size());
}

} // namespace

int main()
{
    const QTemporaryDir disc;
    const QString folder = disc.filePath(u"Torviks"_s);
    if (!MakePhotos(folder))
        return 2;
    torvik::SetDriveOptions({{u'E', disc.path()}});

    std::vector<double> figures;
    std::vector<double> baselines;
    std::size_t seen = 0;
    for (int round = 0; round < rounds; ++round) {
        baselines.push_back(torvik::bench::Milliseconds([&] { seen += BareNames(folder.toStdString()); }));
        figures.push_back(torvik::bench::Milliseconds([&] { seen += PhotoNames(); }));
    }
    if (seen != std::size_t{2} * rounds * photoCount)
        return 2;
    return torvik::bench::Report("photo names", "ms", torvik::bench::Median(figures),
                                 torvik::bench::Median(baselines), limit)
               ? 0
               : 1;
}
