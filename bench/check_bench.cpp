// What the check of a disc costs: its time on two processors against half of its time on one, and against the
// bare reading of all files and the decoding of all pictures, one after the other; and its memory.
//
// Usage: check_bench [DISC]    DISC is build/disc unless given

#include "check/check_disc.h"
#include "measure.h"
#include "platform/paths/drives.h"
#include "processors.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QGuiApplication>
#include <QImage>

#include <cstdio>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

using namespace torvik;

constexpr double mostSeconds = 5;
constexpr double mostOfHalf = 2;
constexpr double mostMebibytes = 150;
constexpr int rounds = 5;

double SecondsOfCheck(CheckResult& result)
{
    return bench::Milliseconds([&] { result = CheckDisc(u'E', [](int, int) {}); }) / 1000;
}

double SecondsOfBareReading(const QString& disc)
{
    return bench::Milliseconds([&] {
               QDirIterator files(disc, QDir::Files, QDirIterator::Subdirectories);
               while (files.hasNext()) {
                   QFile file(files.next());
                   if (!file.open(QIODevice::ReadOnly))
                       qFatal("a file cannot be read");
                   const QByteArray bytes = file.readAll();
                   if (file.fileName().endsWith(u".jpg"_s, Qt::CaseInsensitive) &&
                       QImage::fromData(bytes).isNull())
                       qFatal("a picture cannot be decoded");
               }
           }) /
           1000;
}

double MebibytesAtMost()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

bool ReportLimit(const char* name, const char* unit, double figure, double limit)
{
    const bool isOk = figure <= limit;
    std::printf("%s: %.3f %s, limit %.3f %s, %s\n", name, figure, unit, limit, unit, isOk ? "ok" : "over");
    return isOk;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QString disc = QDir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"build/disc"_s).absolutePath();
    SetDriveOptions({{u'E', disc}});

    CheckResult result;
    SecondsOfCheck(result); // the first reading fills the system's cache
    const double memory = MebibytesAtMost();
    std::vector<double> onOne;
    std::vector<double> onTwo;
    std::vector<double> bare;
    for (int round = 0; round < rounds; ++round) {
        bench::UseProcessors(1);
        onOne.push_back(SecondsOfCheck(result));
        bench::UseProcessors(2);
        onTwo.push_back(SecondsOfCheck(result));
        bare.push_back(SecondsOfBareReading(disc));
    }
    std::printf("%d files, %d findings\n", result.fileCount, static_cast<int>(result.findings.size()));
    const double seconds = bench::Median(onTwo);
    bool isOk = ReportLimit("the check of a disc on two processors", "s", seconds, mostSeconds);
    isOk &= bench::Report("on two processors against half of one's", "s", seconds, bench::Median(onOne) / 2,
                          mostOfHalf);
    std::printf(
        "bare reading and decoding of pictures, one after the other: %.3f s, the check takes %.2f of it\n",
        bench::Median(bare), seconds / bench::Median(bare));
    isOk &= ReportLimit("memory of the process", "MiB", memory, mostMebibytes);
    return isOk ? 0 : 1;
}
