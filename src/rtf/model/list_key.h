#pragma once

#include <tuple>

namespace torvik::rtf {

/// Paragraphs with the same key count together.
struct ListKey {
    enum class Kind { Numbering, List, Reference };
    /// All numbering of the older kind is one list.
    Kind kind = Kind::Numbering;
    /// The number of the list, or that by which paragraphs refer to it.
    int number = 0;

    bool operator<(const ListKey& other) const
    {
        return std::tie(kind, number) < std::tie(other.kind, other.number);
    }
};

} // namespace torvik::rtf
