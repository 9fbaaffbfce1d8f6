#pragma once

#include <QString>

#include <cstdint>

namespace torvik {

/// Opens a web or mail address in the desktop's own program, without waiting for it. Returns a number above
/// 32 when the desktop took it, 31 (no program for it) when it did not; any other kind of address is refused
/// with 31 as well.
std::int32_t ShellExecute(const QString& address);

} // namespace torvik
