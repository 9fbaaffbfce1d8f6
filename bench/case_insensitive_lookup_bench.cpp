// Look-ups in a folder of 30,000 files under the wrong letter case against those under the right one.

#include "measure.h"
#include "platform/paths/drives.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int photoCount = 30000;
constexpr int stride = 7;
constexpr int rounds = 15;
constexpr double limit = 2.0;

QStringList MakePhotos(const QString& folder)
{
    QStringList paths;
    QDir().mkpath(folder);
    for (int i = 0; i < photoCount; ++i) {
        const QString name = u"67TOR%1.JPG"_s.arg(i, 5, 10, QLatin1Char('0'));
        if (!QFile(folder + QLatin1Char('/') + name).open(QIODevice::WriteOnly))
            return {};
        if (i % stride == 0)
            paths.append(u"E:\\Torviks\\"_s + name);
    }
    return paths;
}

qsizetype LookUpAll(const QStringList& paths)
{
    qsizetype length = 0;
    for (const QString& path : paths)
        length += torvik::HostPath(path).size();
    return length;
}

/// One figure: the look-ups of `wrong` against those of `right`, in microseconds each.
bool Compare(const char* name, const QStringList& right, const QStringList& wrong)
{
    std::vector<double> figures;
    std::vector<double> baselines;
    qsizetype difference = LookUpAll(wrong) - LookUpAll(right); // the first time is not counted
    const double each = 1000.0 / static_cast<double>(right.size());
    for (int round = 0; round < rounds; ++round) {
        baselines.push_back(each * torvik::bench::Milliseconds([&] { difference -= LookUpAll(right); }));
        figures.push_back(each * torvik::bench::Milliseconds([&] { difference += LookUpAll(wrong); }));
    }
    const bool isOk = torvik::bench::Report(name, "us", torvik::bench::Median(figures),
                                            torvik::bench::Median(baselines), limit);
    return isOk && difference == 0;
}

} // namespace

int main()
{
    const QTemporaryDir disc;
    const QStringList right = MakePhotos(disc.filePath(u"Torviks"_s));
    if (right.isEmpty())
        return 2;
    torvik::SetDriveOptions({{u'E', disc.path()}});
    // A folder that changed a moment ago is read anew each time; a disc's folders are older than that.
    std::this_thread::sleep_for(std::chrono::seconds(5));

    QStringList wrongName = right;
    QStringList wrongFolder = right;
    QStringList wrongBoth = right;
    for (QString& path : wrongName)
        path.replace(u"67TOR"_s, u"67tor"_s);
    for (QString& path : wrongFolder)
        path.replace(u"Torviks"_s, u"TORVIKS"_s);
    for (QString& path : wrongBoth)
        path = path.toLower().replace(0, 1, u"E"_s);
    bool isOk = Compare("path look-up, name in the wrong case", right, wrongName);
    isOk = Compare("path look-up, folder in the wrong case", right, wrongFolder) && isOk;
    isOk = Compare("path look-up, both in the wrong case", right, wrongBoth) && isOk;
    return isOk ? 0 : 1;
}
