#include "rtf/model/character_state.h"

#include <QHash>

namespace torvik::rtf {

std::size_t CharacterStateHash::operator()(const CharacterState& state) const
{
    const unsigned flags = unsigned(state.bold) | unsigned(state.italic) << 1U |
                           unsigned(state.strike) << 2U | unsigned(state.hidden) << 3U |
                           unsigned(state.rightToLeft) << 4U | unsigned(state.underline) << 5U |
                           unsigned(state.script) << 9U | unsigned(state.capitals) << 11U;
    return qHashMulti(0, state.font, state.size, state.foreground, state.background, state.underlineColor,
                      state.shading, state.patternColor, state.spacing, state.stretch, state.raised,
                      state.link, state.bookmark, flags);
}

} // namespace torvik::rtf
