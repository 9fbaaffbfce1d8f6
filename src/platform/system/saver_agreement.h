#pragma once

#include <QString>

namespace torvik {

/// All that the program and its screen saver agree on: the program writes these settings and puts the
/// saver's file into the Windows folder; the saver reads the settings. Nothing else passes between the two.
namespace saver {
inline const QString settings = QStringLiteral("SCRNSAVE: The Torvik Vollandry 2001"); ///< the application
inline const QString section = QStringLiteral("Settings");
inline const QString interval = QStringLiteral("Interval"); ///< seconds from photo to photo, as decimal text
inline const QString photoFolder = QStringLiteral("TorviksDir"); ///< a drive path with a closing backslash
inline const QString programFile = QStringLiteral("Torvik2001.scr");
} // namespace saver

} // namespace torvik
