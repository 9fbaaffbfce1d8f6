#pragma once

#include <QString>

namespace torvik {

using namespace Qt::StringLiterals;

/// All that the program and its screen saver agree on: the program writes these settings and puts the
/// saver's file into the Windows folder; the saver reads the settings. Nothing else passes between the two.
namespace saver {
inline const QString settings = u"SCRNSAVE: The Torvik Vollandry 2001"_s; ///< the application
inline const QString section = u"Settings"_s;
inline const QString interval = u"Interval"_s;      ///< seconds from photo to photo, as decimal text
inline const QString photoFolder = u"TorviksDir"_s; ///< a drive path with a closing backslash
inline const QString programFile = u"Torvik2001.scr"_s;
} // namespace saver

} // namespace torvik
