#pragma once

#include <QLoggingCategory>

namespace torvik {

/// What the program tells about its work on request, by --verbose or QT_LOGGING_RULES; silent otherwise.

Q_DECLARE_LOGGING_CATEGORY(logStart) ///< torvik.start: folders, settings and the list of photos
Q_DECLARE_LOGGING_CATEGORY(logDisc)  ///< torvik.disc: volumes and drives, and why one is refused
Q_DECLARE_LOGGING_CATEGORY(logFiles) ///< torvik.files: what was looked for, and the name it was found under
Q_DECLARE_LOGGING_CATEGORY(logMedia) ///< torvik.media: files of movies and sounds, and their decoders
Q_DECLARE_LOGGING_CATEGORY(logPrint) ///< torvik.print: printers and jobs

/// Lets all of them be heard. QT_LOGGING_RULES still has the last word.
void LogEverything();

} // namespace torvik
