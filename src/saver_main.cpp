#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "platform/system/arguments_of.h"
#include "platform/system/foreign_windows.h"
#include "runtime/failure.h"
#include "saver/arguments.h"
#include "saver/covered_screens.h"
#include "saver/information.h"
#include "saver/saver_settings.h"
#include "saver/show_runner.h"
#include "ui/application.h"
#include "ui/forms/message_box.h"
#include "ui/forms/program_end.h"
#include "version.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTimer>

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using namespace torvik;

constexpr int badUsage = 2;

int Complain(const QString& problem)
{
    std::fprintf(stderr, "Torvik2001.scr: %s\nTry Torvik2001.scr --help.\n", qPrintable(problem));
    return badUsage;
}

/// Takes the folders of the command line over; returns what is wrong with them. The saver is mostly installed
/// one folder below a program folder, where the embedded disc is looked for as well.
QString TakeFolders(const SaverArguments& arguments)
{
    const int error = ResumeNext([&] {
        SetProgramFolder(arguments.programFolder);
        SetDriveOptions(arguments.drives);
        RefreshDrives();
        if (arguments.programFolder.isEmpty() && DriveFolder(u'Z').isEmpty())
            SetProgramFolder(QCoreApplication::applicationDirPath() + u"/.."_s);
    });
    return error == 0 ? QString() : RunTimeErrorText(error) + u"."_s;
}

/// Lets the show inside a window follow the window's size, and ends it with the window.
void Follow(const HostWindow& host, const ShowRunner& runner, QTimer& timer)
{
    constexpr int twiceASecond = 500; // milliseconds
    QObject::connect(&timer, &QTimer::timeout, &timer, [&host, &runner] {
        if (const auto size = host.Size())
            runner.Windows().front()->resize(*size);
        else
            QCoreApplication::quit();
    });
    timer.start(twiceASecond);
}

int Embed(Application& application, quint64 window)
{
    HostWindow host(window);
    if (!host.Size())
        return Complain(u"There is no window %1."_s.arg(window));
    std::optional<ShowRunner> runner;
    QTimer timer;
    return application.Run([&] {
        runner.emplace(
            ReadSaverSettings(), QRandomGenerator::global()->generateDouble(),
            [&host] { return host.Open(); }, nullptr);
        Follow(host, *runner, timer);
    });
}

int Run(Application& application, const SaverArguments& arguments)
{
    const double start = QRandomGenerator::global()->generateDouble();
    std::optional<ShowRunner> runner;
    switch (arguments.task) {
    case SaverTask::Show:
        return application.Run(
            [&] { runner.emplace(ReadSaverSettings(), start, OpenOnAllScreens, QCoreApplication::quit); });
    case SaverTask::Desktop:
        return application.Run([&] { runner.emplace(ReadSaverSettings(), start, OpenBehindAll, nullptr); });
    case SaverTask::Embed:
        return Embed(application, arguments.window);
    case SaverTask::Inform:
        break;
    }
    return application.Run([] {
        MsgBox(InformationText(ReadSaverSettings()), msgbox::information);
        EndProgram();
    });
}

} // namespace

int main(int argc, char** argv)
{
    const SaverArguments early = ReadSaverArguments(ArgumentsOf(argc, argv), WindowOfScreenSaver());
    if (early.help) {
        std::fputs(qPrintable(SaverHelpText()), stdout);
        return 0;
    }
    if (early.version) {
        std::printf("Torvik2001.scr %s\n", programVersion);
        return 0;
    }
    if (early.task == SaverTask::Embed || early.task == SaverTask::Desktop)
        PreferForeignWindows();

    Application application(argc, argv, early.scale);
    const SaverArguments arguments = ReadSaverArguments(ArgumentsOf(argc, argv), WindowOfScreenSaver());
    if (!arguments.problem.isEmpty())
        return Complain(arguments.problem);
    if (const QString problem = TakeFolders(arguments); !problem.isEmpty())
        return Complain(problem);
    return Run(application, arguments);
}
