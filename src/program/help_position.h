#pragma once

#include <QString>

#include <cstdint>

namespace torvik {

/// The application's help file, as a drive path in the program folder.
QString HelpFile();

/// Notes the window that the help is opened for, and the place that the help window would take.
void InitHelp(std::int32_t window);

/// Closes the help that was opened for the noted window.
void QuitHelp();

} // namespace torvik
