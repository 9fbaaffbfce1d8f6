#pragma once

#include <cstdint>

namespace torvik {

/// Whether the screen, as the program sees it, measures exactly that many pixels, at 15 twips to the pixel;
/// never where the desktop itself enlarges all programs. The height is only looked at when the width matched.
/// A size whose twips do not fit 32 bits is failure 6, Overflow.
bool IsScreenSize(std::int32_t width, std::int32_t height);

} // namespace torvik
