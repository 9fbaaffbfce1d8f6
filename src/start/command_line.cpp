#include "start/command_line.h"

#include "platform/paths/drive_option.h"
#include "ui/scale.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The one list of options. A new one is a member here, its row in `All`, and a field of CommandLine.
struct Options {
    const QCommandLineOption drive{u"drive"_s,
                                   u"The folder or disc image stands for a drive, D to Z. May be repeated."_s,
                                   u"LETTER=FOLDER"_s};
    const QCommandLineOption programFolder{
        u"program-folder"_s, u"The folder of copied photos, start-up sound and help file."_s, u"FOLDER"_s};
    const QCommandLineOption printTo{
        u"print-to"_s, u"Writes each print job there as a file: job-1.pdf, job-2.pdf, ..."_s, u"FOLDER"_s};
    const QCommandLineOption scale{
        u"scale"_s,
        u"Enlarges everything by 1 to 8, such as 1.5; \"fit\" is as large as the screen allows. "
        "Remembered until \"auto\" is given."_s,
        u"FACTOR"_s};
    const QCommandLineOption check{
        u"check"_s,
        u"Checks the disc, tells what is missing or damaged, and ends: with 0 when the disc is whole, "
        "1 when something was found, 2 when there is no disc."_s};
    const QCommandLineOption json{u"json"_s, u"The check reports to a program, as JSON."_s};
    const QCommandLineOption verbose{
        u"verbose"_s, u"Tells which drives, files, decoders and printers are tried, and with what result."_s};
    const QCommandLineOption help{{u"h"_s, u"help"_s}, u"Shows this text."_s};
    const QCommandLineOption version{{u"v"_s, u"version"_s}, u"Shows the version."_s};

    QList<QCommandLineOption> All() const
    {
        return {drive, programFolder, printTo, scale, check, json, verbose, help, version};
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
        read.drives.append(*drive);
    else if (read.problem.isEmpty())
        read.problem = DriveOptionProblem(value);
}

void TakeScale(CommandLine& read, const QString& value, bool isGiven)
{
    read.scale = value;
    if (isGiven && !IsScale(value) && read.problem.isEmpty())
        read.problem = ScaleProblem(value);
}

/// A check is of one disc, and that may be one of the drives.
void TakeCheck(CommandLine& read, const QStringList& discs)
{
    read.checkedDisc = discs.value(0);
    if (discs.size() > 1 && read.problem.isEmpty())
        read.problem = u"--check checks one disc at a time."_s;
}

} // namespace

CommandLine ReadCommandLine(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    Prepare(parser, options);
    CommandLine read;
    if (!parser.parse(QStringList(QString()) + arguments))
        read.problem = parser.errorText();
    const QStringList drives = parser.values(options.drive);
    for (const QString& value : drives)
        TakeDrive(read, value);
    const QStringList folders = parser.positionalArguments();
    read.check = parser.isSet(options.check);
    read.json = parser.isSet(options.json);
    if (read.check)
        TakeCheck(read, folders);
    else
        for (const QString& folder : folders)
            read.drives.append({QChar(), folder});
    if (read.json && !read.check && read.problem.isEmpty())
        read.problem = u"--json belongs to --check."_s;
    read.programFolder = parser.value(options.programFolder);
    read.printFolder = parser.value(options.printTo);
    TakeScale(read, parser.value(options.scale), parser.isSet(options.scale));
    read.verbose = parser.isSet(options.verbose);
    read.help = parser.isSet(options.help);
    read.version = parser.isSet(options.version);
    return read;
}

QString HelpText()
{
    QCommandLineParser parser;
    Prepare(parser, Options());
    return parser.helpText();
}

} // namespace torvik
