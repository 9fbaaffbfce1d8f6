#include "start/command_line.h"

#include "platform/paths/drive_option.h"
#include "ui/scale.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The one list of options. A new one is a member here, its row in `All`, and a field of CommandLine.
struct Options {
    const QCommandLineOption Drive{u"drive"_s,
                                   u"The folder or disc image stands for a drive, D to Z. May be repeated."_s,
                                   u"LETTER=FOLDER"_s};
    const QCommandLineOption ProgramFolder{
        u"program-folder"_s, u"The folder of copied photos, start-up sound and help file."_s, u"FOLDER"_s};
    const QCommandLineOption PrintTo{
        u"print-to"_s, u"Writes each print job there as a file: job-1.pdf, job-2.pdf, ..."_s, u"FOLDER"_s};
    const QCommandLineOption Scale{
        u"scale"_s,
        u"Enlarges everything by 1 to 8, such as 1.5; \"fit\" is as large as the screen allows. "
        "Remembered until \"auto\" is given."_s,
        u"FACTOR"_s};
    const QCommandLineOption Check{
        u"check"_s,
        u"Checks the disc, tells what is missing or damaged, and ends: with 0 when the disc is whole, "
        "1 when something was found, 2 when there is no disc."_s};
    const QCommandLineOption Json{u"json"_s, u"The check reports to a program, as JSON."_s};
    const QCommandLineOption Verbose{
        u"verbose"_s, u"Tells which drives, files, decoders and printers are tried, and with what result."_s};
    const QCommandLineOption Help{{u"h"_s, u"help"_s}, u"Shows this text."_s};
    const QCommandLineOption Version{{u"v"_s, u"version"_s}, u"Shows the version."_s};

    QList<QCommandLineOption> All() const
    {
        return {Drive, ProgramFolder, PrintTo, Scale, Check, Json, Verbose, Help, Version};
    }
};

void Prepare(QCommandLineParser& parser, const Options& options)
{
    // Options of Qt's own are taken away later only; "-reverse" must not pass for -v among others.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        u"Shows the disc of The Torvik Vollandry 2001. Without a FOLDER the disc "
        "is looked for on all mounted media."_s);
    parser.addOptions(options.All());
    parser.addPositionalArgument(
        u"FOLDER"_s,
        u"A folder that holds a disc, or an image file of one; it takes the first free drive letter. For --check also a letter with a colon."_s,
        u"[FOLDER]"_s);
}

void TakeDrive(CommandLine& read, const QString& value)
{
    if (const auto drive = ReadDriveOption(value))
        read.Drives.append(*drive);
    else if (read.Problem.isEmpty())
        read.Problem = DriveOptionProblem(value);
}

void TakeScale(CommandLine& read, const QString& value, bool isGiven)
{
    read.Scale = value;
    if (isGiven && !IsScale(value) && read.Problem.isEmpty())
        read.Problem = ScaleProblem(value);
}

/// A check is of one disc, and that may be one of the drives.
void TakeCheck(CommandLine& read, const QStringList& discs)
{
    read.CheckedDisc = discs.value(0);
    if (discs.size() > 1 && read.Problem.isEmpty())
        read.Problem = u"--check checks one disc at a time."_s;
}

} // namespace

CommandLine ReadCommandLine(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    Prepare(parser, options);
    CommandLine read;
    if (!parser.parse(QStringList(QString()) + arguments))
        read.Problem = parser.errorText();
    const QStringList drives = parser.values(options.Drive);
    for (const QString& value : drives)
        TakeDrive(read, value);
    const QStringList folders = parser.positionalArguments();
    read.Check = parser.isSet(options.Check);
    read.Json = parser.isSet(options.Json);
    if (read.Check)
        TakeCheck(read, folders);
    else
        for (const QString& folder : folders)
            read.Drives.append({QChar(), folder});
    if (read.Json && !read.Check && read.Problem.isEmpty())
        read.Problem = u"--json belongs to --check."_s;
    read.ProgramFolder = parser.value(options.ProgramFolder);
    read.PrintFolder = parser.value(options.PrintTo);
    TakeScale(read, parser.value(options.Scale), parser.isSet(options.Scale));
    read.Verbose = parser.isSet(options.Verbose);
    read.Help = parser.isSet(options.Help);
    read.Version = parser.isSet(options.Version);
    return read;
}

QString HelpText()
{
    QCommandLineParser parser;
    Prepare(parser, Options());
    return parser.helpText();
}

} // namespace torvik
