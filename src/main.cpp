#include "bind_handlers.h"
#include "check/run_check.h"
#include "platform/files/program_files.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "platform/system/arguments_of.h"
#include "platform/system/environment.h"
#include "platform/system/freed_memory.h"
#include "runtime/failure.h"
#include "runtime/logging.h"
#include "start/chosen_scale.h"
#include "start/command_line.h"
#include "ui/application.h"
#include "ui/printer/printer.h"
#include "ui/scale.h"
#include "version.h"
#include "windows/splash.h"

#include <QGuiApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int badUsage = 2;

int Complain(const QString& problem)
{
    std::fprintf(stderr, "torvik2001: %s\nTry torvik2001 --help.\n", qPrintable(problem));
    return badUsage;
}

/// Takes the folders of the command line over; returns what is wrong with them.
QString TakeFolders(const torvik::CommandLine& line)
{
    using namespace torvik;
    const int error = ResumeNext([&] {
        SetProgramFolder(line.programFolder);
        SetDriveOptions(line.drives);
    });
    return error == 0 ? QString() : RunTimeErrorText(error) + u"."_s;
}

/// The check has no window, so it needs no display.
int CheckOnly(int argc, char** argv)
{
    using namespace torvik;
    const HeldVariable withoutDisplay("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const CommandLine line = ReadCommandLine(ArgumentsOf(argc, argv));
    if (!line.problem.isEmpty())
        return Complain(line.problem);
    if (const QString problem = TakeFolders(line); !problem.isEmpty())
        return Complain(problem);
    return RunCheck(line.checkedDisc, line.json);
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvik;
    GiveFreedMemoryBack();
    const CommandLine early = ReadCommandLine(ArgumentsOf(argc, argv));
    if (early.help) {
        const QCoreApplication withoutDisplay(argc, argv);
        std::fputs(qPrintable(HelpText()), stdout);
        return 0;
    }
    if (early.version) {
        std::printf("torvik2001 %s\n", programVersion);
        return 0;
    }
    if (early.verbose)
        LogEverything();
    if (early.check)
        return CheckOnly(argc, argv);

    Application application(argc, argv, ChosenScale(IsScale(early.scale) ? early.scale : QString()));
    const CommandLine line = ReadCommandLine(ArgumentsOf(argc, argv));
    if (!line.problem.isEmpty())
        return Complain(line.problem);
    if (const QString problem = TakeFolders(line); !problem.isEmpty())
        return Complain(problem);
    SupplyProgramFolder();
    Printer.PrintTo(line.printFolder);
    qCDebug(logStart, "torvik2001 %s, program folder %s", programVersion, qUtf8Printable(ProgramFolder()));

    BindHandlers();
    return application.Run([] { Form2.LoadForm(); });
}
