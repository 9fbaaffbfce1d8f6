#pragma once

#include <QtGlobal>

namespace torvik {

/// A piece of a text: where it begins, counted from 0, and how long it is, in UTF-16 units.
struct TextRange {
    qsizetype begin = 0;
    qsizetype length = 0;

    qsizetype End() const { return begin + length; }
    friend bool operator==(const TextRange& one, const TextRange& other) = default;
};

} // namespace torvik
