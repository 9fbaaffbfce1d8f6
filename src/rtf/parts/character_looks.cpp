#include "rtf/parts/character_looks.h"

namespace torvik::rtf {

void CharacterLooks::SetFont(int number)
{
    document_.group.character.font = number;
    document_.group.page = &document_.fonts.PageOf(number, document_.codePage);
}

void CharacterLooks::SetDefaultFont(int number)
{
    document_.defaultFont = number;
    SetFont(number);
}

void CharacterLooks::SetCodePage(int number)
{
    document_.codePage = number;
    document_.group.page = &document_.fonts.PageOf(document_.group.character.font, number);
}

void CharacterLooks::Reset()
{
    CharacterState& character = document_.group.character;
    const int link = character.link;
    character = CharacterState();
    character.link = link;
    document_.group.describesComplex = true;
    SetFont(document_.defaultFont);
    KeepForAfterStyle();
}

void CharacterLooks::ReturnFromStyle()
{
    CharacterState& character = document_.group.character;
    const int link = character.link;
    character = withoutStyle_;
    character.link = link;
    SetFont(withoutStyle_.font);
}

int CharacterLooks::Format()
{
    return VariesByLetter() ? FormatOf(false, false) : NumberOf(document_.group.character);
}

int CharacterLooks::FormatOf(bool areSpaces, bool areComplex)
{
    return NumberOf(document_.group.character.OfLetters(areSpaces, areComplex));
}

int CharacterLooks::NumberOf(const CharacterState& looks)
{
    if (bookmark_ != 0) {
        CharacterState marked = looks;
        marked.bookmark = bookmark_;
        return document_.formats.Character(marked);
    }
    if (lastFormat_ < 0 || !(lastState_ == looks)) {
        lastState_ = looks;
        lastFormat_ = document_.formats.Character(looks);
    }
    return lastFormat_;
}

} // namespace torvik::rtf
