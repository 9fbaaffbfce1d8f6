#pragma once

#include <QString>

#include <cstdint>

namespace torvik {

/// Commands of the help system.
namespace winHelp {
inline constexpr int quit = 2;
inline constexpr int contents = 3;
} // namespace winHelp

/// Gives the help system a command on behalf of a window. `contents` opens a help file, a drive path, at its
/// first topic; one that is open already comes to the front. A file that cannot be read brings the help
/// system's own message. `quit` closes the help windows that are open; without one it does nothing. Returns
/// whether the command was carried out. `data` belongs to commands that search.
bool WinHelp(std::int32_t window, const QString& helpFile, int command, const QString& data);

} // namespace torvik
