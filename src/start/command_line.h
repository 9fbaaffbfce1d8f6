#pragma once

#include "platform/paths/drives.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace torvik {

/// What the command line asks for.
struct CommandLine {
    QList<DriveOption> Drives; ///< --drive LETTER=FOLDER, and bare folders without a letter
    QString ProgramFolder;     ///< --program-folder FOLDER; empty when it was not given
    QString PrintFolder;       ///< --print-to FOLDER; empty when it was not given
    QString Scale;             ///< --scale FACTOR, fit or auto; empty when it was not given
    bool Check = false;        ///< --check: the disc is checked, and no window opens
    QString CheckedDisc; ///< a folder, an image or a letter with a colon; empty for the disc that is found
    bool Json = false;   ///< --json: the check reports to a program
    bool Verbose = false;
    bool Help = false;
    bool Version = false;
    QString Problem; ///< what is wrong with it, in words for the user; empty when nothing is
};

/// Reads the arguments behind the program's name.
CommandLine ReadCommandLine(const QStringList& arguments);

/// The text of --help. Needs an application object, which knows the program's name; one without windows will
/// do.
QString HelpText();

} // namespace torvik
