#pragma once

namespace torvik {

/// Gives the main window the place and size that the last run has left in the settings, or else those of the
/// screen. Failure 13 for a setting that holds no number.
void RestoreMainWindowPlace();

/// Writes place and size of the main window into the settings; a minimized one keeps what they hold.
void SaveMainWindowPlace();

} // namespace torvik
