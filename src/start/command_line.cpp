#include "start/command_line.h"

#include "platform/paths/drive_option.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void TakeDrive(CommandLine& read, const QString& value)
{
    if (const auto drive = ReadDriveOption(value))
        read.Drives.append(*drive);
    else
        read.Problem = DriveOptionProblem(value);
}

/// Takes one argument off the front of `rest`, with its value where it has one.
void TakeArgument(CommandLine& read, QStringList& rest)
{
    const QString argument = rest.takeFirst();
    const auto valueOf = [&](const QString& option, QString& value) {
        if (argument.startsWith(option + u"="_s)) {
            value = argument.mid(option.size() + 1);
            return true;
        }
        if (argument != option)
            return false;
        if (rest.isEmpty())
            read.Problem = u"%1 needs a value."_s.arg(option);
        else
            value = rest.takeFirst();
        return true;
    };

    QString value;
    if (argument == u"--help"_s || argument == u"-h"_s) {
        read.Help = true;
    } else if (argument == u"--version"_s || argument == u"-v"_s) {
        read.Version = true;
    } else if (valueOf(u"--drive"_s, value)) {
        if (read.Problem.isEmpty())
            TakeDrive(read, value);
    } else if (valueOf(u"--program-folder"_s, value)) {
        read.ProgramFolder = value;
    } else if (valueOf(u"--print-to"_s, value)) {
        read.PrintFolder = value;
    } else if (argument.startsWith(u'-') && argument.size() > 1) {
        read.Problem = u"There is no option %1."_s.arg(argument);
    } else {
        read.Drives.append({QChar(), argument});
    }
}

} // namespace

CommandLine ReadCommandLine(const QStringList& arguments)
{
    CommandLine read;
    QStringList rest = arguments;
    while (!rest.isEmpty() && read.Problem.isEmpty())
        TakeArgument(read, rest);
    return read;
}

QString HelpText()
{
    return u"Usage: torvik2001 [options] [FOLDER]\n"
           "\n"
           "Shows the disc of The Torvik Vollandry 2001. Without a FOLDER the disc is looked for on\n"
           "all mounted media.\n"
           "\n"
           "  FOLDER                    a folder that holds a disc; it takes the first free drive letter\n"
           "  --drive LETTER=FOLDER     the folder stands for a drive, D to Z; may be given again\n"
           "  --program-folder FOLDER   where copied photos, the start-up sound and the help file are\n"
           "  --print-to FOLDER         each print job becomes a file job-1.pdf, job-2.pdf, ... there\n"
           "  -h, --help                shows this text\n"
           "  -v, --version             shows the version\n"_s;
}

} // namespace torvik
