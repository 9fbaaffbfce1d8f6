#include "rtf/model/character_state.h"

#include <QHash>

namespace torvik::rtf {

bool CharacterState::VariesByLetter() const
{
    return underline == Underline::Words || complex.isTold;
}

CharacterState CharacterState::OfLetters(bool areSpaces, bool areComplex) const
{
    CharacterState state = *this;
    state.complex = ComplexLooks();
    if (underline == Underline::Words)
        state.underline = areSpaces ? Underline::None : Underline::Single;
    if (areComplex && complex.isTold) {
        state.font = complex.font >= 0 ? complex.font : font;
        state.size = complex.size > 0 ? complex.size : size;
        state.bold = complex.bold;
        state.italic = complex.italic;
    }
    return state;
}

bool IsComplexLetter(QChar letter)
{
    const char16_t unit = letter.unicode();
    constexpr char16_t hebrew = 0x0590;
    constexpr char16_t afterTibetan = 0x1000;
    constexpr char16_t hebrewForms = 0xfb1d;
    constexpr char16_t afterArabicForms = 0xfdd0;
    constexpr char16_t moreArabicForms = 0xfe70;
    constexpr char16_t afterMoreArabicForms = 0xff00;
    return (unit >= hebrew && unit < afterTibetan) || (unit >= hebrewForms && unit < afterArabicForms) ||
           (unit >= moreArabicForms && unit < afterMoreArabicForms);
}

std::size_t CharacterStateHash::operator()(const CharacterState& state) const
{
    const unsigned flags =
        unsigned(state.bold) | unsigned(state.italic) << 1U | unsigned(state.strike) << 2U |
        unsigned(state.hidden) << 3U | unsigned(state.rightToLeft) << 4U | unsigned(state.underline) << 5U |
        unsigned(state.script) << 9U | unsigned(state.capitals) << 11U | unsigned(state.outlined) << 13U |
        unsigned(state.doubleStrike) << 14U | unsigned(state.relief) << 15U;
    return qHashMulti(0, state.font, state.size, state.foreground, state.background, state.underlineColor,
                      state.shading, state.patternColor, state.spacing, state.stretch, state.raised,
                      state.link, state.bookmark, flags);
}

} // namespace torvik::rtf
