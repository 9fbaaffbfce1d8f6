#pragma once

#include <QtGlobal>

namespace torvik {

/// A piece of a text: where it begins, counted from 0, and how long it is, in UTF-16 units.
struct TextRange {
    qsizetype Begin = 0;
    qsizetype Length = 0;

    qsizetype End() const { return Begin + Length; }
    friend bool operator==(const TextRange& one, const TextRange& other) = default;
};

} // namespace torvik
