// The booklet of all 35 years with its cover, printed to files: processor time and memory against fixed
// limits, and beside it an office suite that turns the same documents into PDF files, where one is installed.
//
// Usage: booklet_bench [DISC]    DISC is build/disc unless given

#include "bind_handlers.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
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

#include <cstdio>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double mostSeconds = 30;
constexpr double mostMebibytes = 300;
constexpr qsizetype expectedJobs = 1 + 35 * 4;

double ProcessorSeconds(int whose)
{
    rusage usage{};
    getrusage(whose, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

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

bool Report(const char* name, const char* unit, double figure, double limit)
{
    std::printf("%s: %.1f %s, limit %.0f %s, %s\n", name, figure, unit, limit, unit,
                figure <= limit ? "ok" : "over");
    return figure <= limit;
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

/// The documents of the disc that the booklet is made of.
QStringList Documents(const QString& disc)
{
    const QDir texts(QDir(disc).filePath(u"RichText"_s));
    QStringList paths;
    for (const char* ending : {"desc", "opts", "stats", "colors"}) {
        const QStringList names = texts.entryList({u"??%1.rtf"_s.arg(QLatin1String(ending))});
        for (const QString& name : names)
            paths.append(texts.filePath(name));
    }
    return paths;
}

void ConvertWithOfficeSuite(const QString& disc, double ours)
{
    const QString suite = QStandardPaths::findExecutable(u"soffice"_s);
    if (suite.isEmpty()) {
        std::printf("an office suite on the same documents: not measured, none is installed\n");
        return;
    }
    const QTemporaryDir folder;
    const double before = ProcessorSeconds(RUSAGE_CHILDREN);
    QProcess process;
    process.start(suite, QStringList{u"-env:UserInstallation=file://"_s + folder.path(), u"--headless"_s,
                                     u"--convert-to"_s, u"pdf"_s, u"--outdir"_s, folder.path()} +
                             Documents(disc));
    process.waitForFinished(-1);
    const double taken = ProcessorSeconds(RUSAGE_CHILDREN) - before;
    const auto made = QDir(folder.path()).entryList({u"*.pdf"_s}).size();
    std::printf("an office suite on the same documents: %.1f s for %d files of %.1f MiB, ratio %.2f\n", taken,
                static_cast<int>(made), MebibytesIn(folder.path()), ours / taken);
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvik;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    Application application(argc, argv);
    const QString disc = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"build/disc"_s;

    QStringList messages;
    SetMessageResponder([&](const MessageRequest& request) {
        messages.append(request.text);
        return msgbox::answerCancel;
    });
    SetProgramFolder(home.path());
    SetDriveOptions({{u'G', disc}});
    const QTemporaryDir printed;
    Printer.PrintTo(printed.path());
    Clock::StopAt(QDateTime(QDate(2001, 6, 17), QTime(14, 5)));
    BindHandlers();
    RunHandler([] { Form2.LoadForm(); });
    Clock::Turn(5000);
    QCoreApplication::processEvents();

    const double before = ProcessorSeconds(RUSAGE_SELF);
    RunHandler(PrintWholeBooklet);
    const double taken = ProcessorSeconds(RUSAGE_SELF) - before;
    const auto jobs = QDir(printed.path()).entryList({u"job-*.pdf"_s}).size();
    if (jobs != expectedJobs) {
        std::printf("%d jobs of %d went out: %s\n", static_cast<int>(jobs), static_cast<int>(expectedJobs),
                    qPrintable(messages.join(u' ')));
        return 1;
    }
    const bool isQuick = Report("the booklet of all years, processor time", "s", taken, mostSeconds);
    const bool isSmall = Report("the booklet of all years, memory", "MiB", PeakMebibytes(), mostMebibytes);
    std::printf("the booklet of all years, its files: %.1f MiB\n", MebibytesIn(printed.path()));
    ConvertWithOfficeSuite(disc, taken);
    return isQuick && isSmall ? 0 : 1;
}
