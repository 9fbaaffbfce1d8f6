#pragma once

#include "platform/paths/drives.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace torvik {

/// What the saver is started for.
enum class SaverTask {
    Inform, ///< tell what it shows and how that is changed
    Show,   ///< the show on all screens, until somebody comes back
    Embed,  ///< the show inside a window of another program
    Desktop ///< the show behind all windows, on the desktop's own background
};

/// What the saver's command line asks for.
struct SaverArguments {
    SaverTask task = SaverTask::Inform;
    quint64 window = 0;        ///< number of the window to draw into
    QList<DriveOption> drives; ///< --drive LETTER=FOLDER
    QString programFolder;     ///< --program-folder FOLDER; empty when it was not given
    QString scale;             ///< --scale FACTOR, fit or auto; empty when it was not given
    bool help = false;
    bool version = false;
    QString problem; ///< what is wrong with it, in words for the user; empty when nothing is
};

/// Reads the arguments after the program's name, in the manner of Windows (/s) and of X (-root); letter case
/// and the signs in front do not matter. `screenSaverWindow` is the window that the environment names, or
/// empty; it is drawn into unless the arguments ask for another window, the show on all screens, or
/// information.
SaverArguments ReadSaverArguments(const QStringList& arguments, const QString& screenSaverWindow);

/// The text of --help.
QString SaverHelpText();

} // namespace torvik
