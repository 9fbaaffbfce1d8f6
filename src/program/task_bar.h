#pragma once

#include <QString>

#include <cstdint>

namespace torvik {

/// The desktop's task bar and its counterpart: hiding it lets Form1 cover the whole screen, panels and docks
/// included; showing it takes that back.

/// How ShowWindow shows.
namespace showWindow {
inline constexpr int hide = 0;
inline constexpr int normal = 1;
} // namespace showWindow

/// The handle of a window by its class name: only "Shell_TrayWnd", the task bar, is known; 0 for any other.
std::int32_t FindWindowByClass(const QString& className);

/// Hides or shows the window of a handle. Returns 1 when it was showing before, else 0. Handle 0 does
/// nothing.
std::int32_t ShowWindow(std::int32_t window, int how);

} // namespace torvik
