#include "rtf/model/paragraph_state.h"

#include <QHash>

#include <algorithm>
#include <iterator>

namespace torvik::rtf {

bool ParagraphState::HasBorder() const
{
    return std::any_of(std::begin(borders), std::end(borders), [](const Border& b) { return b.IsSet(); });
}

bool ParagraphState::HasBox() const
{
    return std::count_if(std::begin(borders), std::end(borders), [](const Border& b) { return b.IsSet(); }) >=
           3;
}

std::size_t ParagraphStateHash::operator()(const ParagraphState& state) const
{
    const unsigned flags = unsigned(state.lineMultiple) | unsigned(state.keepTogether) << 1U |
                           unsigned(state.breakBefore) << 2U | unsigned(state.rightToLeft) << 3U |
                           unsigned(state.alignment) << 5U | unsigned(state.markOutside) << 4U |
                           unsigned(state.frame.isSet) << 8U | unsigned(state.keepWithNext) << 9U;
    int tabs = 0;
    for (const TabStop& tab : state.tabs)
        tabs = static_cast<int>(static_cast<unsigned>(tabs) * 31U + static_cast<unsigned>(tab.position) * 8U +
                                static_cast<unsigned>(tab.leader) * 4096U + static_cast<unsigned>(tab.type));
    unsigned borders = 0;
    const auto add = [&borders](const Border& border) {
        borders =
            borders * 31U + static_cast<unsigned>(border.line) * 8U + static_cast<unsigned>(border.width);
    };
    std::for_each(std::begin(state.borders), std::end(state.borders), add);
    add(state.between);
    return qHashMulti(0, flags, state.leftIndent, state.rightIndent, state.firstIndent, state.spaceBefore,
                      state.spaceAfter, state.lineSpacing, state.background, state.shading,
                      state.patternColor, state.frame.width, state.frame.left, tabs, borders, state.list,
                      state.listLevel, state.tableDepth);
}

} // namespace torvik::rtf
