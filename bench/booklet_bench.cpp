// The booklet of all 35 years with its cover, printed to files: processor time against an office suite that
// turns the same documents into PDF files, where one is installed, and the memory of the whole program. Both
// are measured in turns, since a machine is not equally fast all the time.
//
// Usage: booklet_bench [DISC [FOLDER]]    DISC is build/disc unless given; what each turn prints stays in a
// folder 1, 2 or 3 of FOLDER

#include "bind_handlers.h"
#include "browsing.h"
#include "measure.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "processor_time.h"
#include "program/catalogue/booklet.h"
#include "program/program_state.h"
#include "ui/application.h"
#include "ui/forms/clock.h"
#include "ui/forms/event.h"
#include "ui/forms/message_box.h"
#include "ui/printer/printer.h"
#include "windows/main_window.h"
#include "windows/splash.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <optional>
#include <sys/resource.h>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double mostOfTheSuite = 1.0 / 4;
constexpr double mostMebibytes = 64;
constexpr int turns = 3;
constexpr int firstNumber = 67;
constexpr qsizetype expectedJobs = 1 + qsizetype{torvik::yearCount} * 4;

double MebibytesIn(const QString& folder)
{
    qint64 bytes = 0;
    const QFileInfoList files = QDir(folder).entryInfoList({u"*.pdf"_s});
    for (const QFileInfo& file : files)
        bytes += file.size();
    return static_cast<double>(bytes) / (1024 * 1024);
}

double PeakMebibytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

/// The photos that the start has read ahead are no part of the booklet.
void WaitForPhotosAhead()
{
    using namespace torvik;
    constexpr int neighbours = 3;
    constexpr int patience = 3000; // milliseconds: a small disc has fewer
    int ready = 0;
    for (int waited = 0; waited < patience && ready < neighbours; ++waited) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        ready = 0;
        for (int index = 1; index <= state.PhotoCount; ++index)
            ready += Form1->Image4.HasReadAhead(state.PhotoFiles(index)) ? 1 : 0;
    }
}

/// Ticks cover, introduction, description and details, selects all years, and prints.
void PrintWholeBooklet()
{
    using namespace torvik;
    for (const int box : {0, 1, 3, 4})
        Form1->Check1(box).SetValue(true);
    Form1->List1(0).SetListIndex(0);
    Form1->List1(1).SetListIndex(yearCount - 1);
    Form1->cmdPrint.Click.Call();
}

/// The documents that the booklet is made of.
QStringList Documents(const QString& disc)
{
    using namespace torvik;
    QStringList files{BookletIntroduction()};
    for (int number = firstNumber; number < firstNumber + yearCount; ++number) {
        const QString prefix = BookletPrefix(number);
        files += BookletDescription(prefix);
        files += BookletDetails(prefix);
    }
    QStringList paths;
    const QDir texts(QDir(disc).filePath(u"RichText"_s));
    const QStringList names = texts.entryList(QDir::Files);
    for (const QString& name : names) {
        if (files.contains(u"\\RichText\\"_s + name, Qt::CaseInsensitive))
            paths.append(texts.filePath(name));
    }
    return paths;
}

/// The office suite that is installed; empty without one.
QString OfficeSuite()
{
    QString suite = QStandardPaths::findExecutable(u"soffice"_s);
    if (suite.isEmpty())
        std::printf("an office suite on the same documents: not measured, none is installed\n");
    return suite;
}

/// What an office suite takes for the same documents, and how large its files are.
struct Converted {
    double seconds = 0;
    double mebibytes = 0;
};

/// Nothing where it does not make them all.
std::optional<Converted> ConvertedByOfficeSuite(const QString& suite, const QString& disc)
{
    const QTemporaryDir folder;
    const double before = torvik::bench::ChildrenMilliseconds();
    QProcess process;
    process.start(suite, QStringList{u"-env:UserInstallation=file://"_s + folder.path(), u"--headless"_s,
                                     u"--convert-to"_s, u"pdf"_s, u"--outdir"_s, folder.path()} +
                             Documents(disc));
    process.waitForFinished(-1);
    const double taken = (torvik::bench::ChildrenMilliseconds() - before) / 1000;
    const auto made = QDir(folder.path()).entryList({u"*.pdf"_s}).size();
    if (made != expectedJobs) {
        std::printf("an office suite made %d files of %d\n", static_cast<int>(made),
                    static_cast<int>(expectedJobs));
        return std::nullopt;
    }
    const double mebibytes = MebibytesIn(folder.path());
    std::printf("an office suite on the same documents: %.1f s for %d files of %.1f MiB\n", taken,
                static_cast<int>(made), mebibytes);
    return Converted{taken, mebibytes};
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvik;
    const bench::Home home;
    Application application(argc, argv);
    const QString disc = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"build/disc"_s;

    QStringList messages;
    SetMessageResponder([&](const MessageRequest& request) {
        messages.append(request.text);
        return msgbox::answerCancel;
    });
    SetProgramFolder(home.Folder());
    SetDriveOptions({{u'G', disc}});
    const QTemporaryDir passing;
    const QString printed = argc > 2 ? QString::fromLocal8Bit(argv[2]) : passing.path();
    Clock::StopAt(QDateTime(QDate(2001, 6, 17), QTime(14, 5)));
    BindHandlers();
    RunHandler([] { Form2.LoadForm(); });
    Clock::Turn(5000);
    QCoreApplication::processEvents();

    WaitForPhotosAhead();
    std::printf("the program before it prints: %.1f MiB\n", PeakMebibytes());
    std::vector<double> ours;
    std::vector<double> theirs;
    const QString suite = OfficeSuite();
    double mebibytes = 0;
    double theirMebibytes = 0;
    for (int turn = 1; turn <= turns; ++turn) {
        const QString folder = QDir(printed).filePath(QString::number(turn));
        Printer.PrintTo(folder);
        const double before = bench::ProcessMilliseconds();
        RunHandler(PrintWholeBooklet);
        ours.push_back((bench::ProcessMilliseconds() - before) / 1000);
        const auto jobs = QDir(folder).entryList({u"job-*.pdf"_s}).size();
        if (jobs != expectedJobs) {
            std::printf("%d jobs of %d went out: %s\n", static_cast<int>(jobs),
                        static_cast<int>(expectedJobs), qPrintable(messages.join(u' ')));
            return 1;
        }
        mebibytes = MebibytesIn(folder);
        if (suite.isEmpty())
            continue;
        const auto converted = ConvertedByOfficeSuite(suite, disc);
        if (!converted)
            return 1;
        theirs.push_back(converted->seconds);
        theirMebibytes = converted->mebibytes;
    }
    std::printf("the booklet of all years: %.2f s, files of %.1f MiB\n", bench::Median(ours), mebibytes);
    bool isOk =
        bench::Report("memory, the whole program that printed it", "MiB", PeakMebibytes(), mostMebibytes, 1);
    if (!suite.isEmpty()) {
        isOk = bench::ReportPairs("the booklet of all years, processor time", "s", ours, theirs,
                                  mostOfTheSuite) &&
               isOk;
        isOk = bench::Report("the booklet of all years, files", "MiB", mebibytes, theirMebibytes, 1) && isOk;
    }
    return isOk ? 0 : 1;
}
