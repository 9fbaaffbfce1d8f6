#include "sample/files/code_page_1252.h"

#include <algorithm>
#include <array>

namespace torvik::sample {

int ByteOfWestern(QChar character)
{
    // The bytes 0x80 to 0x9F in their order; 0 where nothing is assigned.
    constexpr std::array<char16_t, 32> high = {
        0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
    const char16_t code = character.unicode();
    if (code < 0x80 || (code >= 0xA0 && code < 0x100))
        return code;
    const auto found = std::find(high.begin(), high.end(), code);
    return found == high.end() || code == 0 ? -1 : 0x80 + static_cast<int>(found - high.begin());
}

} // namespace torvik::sample
