#include "rtf/write/edge_spaces.h"

#include "rtf/write/formats.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

/// The looks of a plain paragraph; nullptr for a table or a box, which keeps its spaces itself.
const ParagraphState* PlainStateOf(const Block& block, const Formats& formats)
{
    if (block.table || block.box)
        return nullptr;
    const ParagraphState& state = formats.StateOf(block.paragraph.format);
    return state.HasBorder() || state.between.IsSet() || state.frame.isSet ? nullptr : &state;
}

} // namespace

EdgeSpaces EdgeSpacesOf(const std::vector<Block>& first, const std::vector<Block>& last,
                        const Formats& formats)
{
    EdgeSpaces spaces;
    const ParagraphState* top = first.empty() ? nullptr : PlainStateOf(first.front(), formats);
    const ParagraphState* bottom = last.empty() ? nullptr : PlainStateOf(last.back(), formats);
    if (top != nullptr)
        spaces.above = std::min(top->spaceBefore, largestEdgeSpace);
    if (bottom != nullptr)
        spaces.below = std::min(bottom->spaceAfter, largestEdgeSpace);
    return spaces;
}

} // namespace torvik::rtf
