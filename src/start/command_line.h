#pragma once

#include "platform/paths/drives.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace torvik {

/// What the command line asks for.
struct CommandLine {
    QList<DriveOption> drives; ///< --drive LETTER=FOLDER, and bare folders without a letter
    QString programFolder;     ///< --program-folder FOLDER; empty when it was not given
    QString printFolder;       ///< --print-to FOLDER; empty when it was not given
    QString scale;             ///< --scale FACTOR, fit or auto; empty when it was not given
    bool check = false;        ///< --check: the disc is checked, and no window opens
    QString checkedDisc; ///< a folder, an image or a letter with a colon; empty for the disc that is found
    bool json = false;   ///< --json: the check reports to a program
    bool verbose = false;
    bool help = false;
    bool version = false;
    QString problem; ///< what is wrong with it, in words for the user; empty when nothing is
};

/// Reads the arguments after the program's name.
CommandLine ReadCommandLine(const QStringList& arguments);

/// The text of --help. Needs an application object, which knows the program's name; one without windows will
/// do.
QString HelpText();

} // namespace torvik
