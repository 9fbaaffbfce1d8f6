#pragma once

#include "rtf/model/content.h"

#include <vector>

namespace torvik::rtf {

/// Twips; no page ends in the room between a cell's text and its edge.
inline constexpr int largestEdgeSpace = 1440;

class Formats;

/// Twips that the first and the last paragraph of a cell or a box want above and below: Qt leaves them out
/// there.
struct EdgeSpaces {
    int above = 0;
    int below = 0;
};

/// `first` and `last` are the same where there is only one list of blocks.
EdgeSpaces EdgeSpacesOf(const std::vector<Block>& first, const std::vector<Block>& last,
                        const Formats& formats);

} // namespace torvik::rtf
