#pragma once

#include <QByteArray>

namespace torvik {

/// The number in `count` bytes (1 to 4) from `at` on, the lowest first.
inline int NumberAt(const QByteArray& bytes, qsizetype at, int count = 4)
{
    unsigned value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value * 256 + static_cast<unsigned char>(bytes.at(at + i));
    return static_cast<int>(value);
}

} // namespace torvik
