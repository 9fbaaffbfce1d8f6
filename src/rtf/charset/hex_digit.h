#pragma once

namespace torvik::rtf {

/// The value of a hexadecimal digit, -1 for any other character.
constexpr int HexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace torvik::rtf
