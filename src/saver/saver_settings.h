#pragma once

#include <QString>

namespace torvik {

/// What the saver shows.
struct SaverSettings {
    int interval = 0; ///< milliseconds from photo to photo, 1000 to 3,600,000
    QString folder;   ///< drive path of the photos with a closing backslash; empty when none was chosen
};

/// Reads the two settings. An interval that is no number is 5 seconds, one that is too short or too long the
/// shortest or longest. Never fails.
SaverSettings ReadSaverSettings();

} // namespace torvik
