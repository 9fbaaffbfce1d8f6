#pragma once

#include <cstdint>

namespace torvik {

/// Whether the screen measures exactly that many pixels, at 15 twips to the pixel whatever the display's own
/// density. The height is only looked at when the width matched. A size whose twips do not fit 32 bits is
/// failure 6, Overflow.
bool IsScreenSize(std::int32_t width, std::int32_t height);

} // namespace torvik
