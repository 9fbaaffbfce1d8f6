#include "rtf/read/style_reader.h"

#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

namespace torvik::rtf {

void StyleReader::ApplyToParagraph(int number)
{
    LeaveParagraphStyle();
    interpreter_.Looks().KeepForAfterStyle();
    const StyleWords* style = LooksAreSpelledOut() ? nullptr : sheet_.OfParagraph(number);
    interpreter_.Paragraph().style = style != nullptr ? number : 0;
    if (style != nullptr)
        Apply(*style);
}

void StyleReader::ApplyToCharacters(int number)
{
    const StyleWords* style = sheet_.OfCharacter(number);
    if (style != nullptr && !LooksAreSpelledOut())
        Apply(*style);
}

void StyleReader::ResetParagraph()
{
    LeaveParagraphStyle();
    interpreter_.Paragraph() = ParagraphState();
    interpreter_.Borders().ChooseNone();
}

void StyleReader::LeaveParagraphStyle()
{
    if (interpreter_.Paragraph().style != 0)
        interpreter_.Looks().ReturnFromStyle();
}

/// Looks ahead as far as the words go that stand before the text.
bool StyleReader::LooksAreSpelledOut() const
{
    constexpr int mostWords = 32;
    Tokenizer ahead = tokens_;
    for (int i = 0; i < mostWords; ++i) {
        const Token token = ahead.Next();
        if (token.kind != TokenKind::Word)
            return false;
        if (IsLook(FindWord(WordScope::Text, token.text)))
            return true;
    }
    return false;
}

void StyleReader::Apply(const StyleWords& style)
{
    for (const StyleWord& look : style)
        look.word->apply(interpreter_, look.argument);
    interpreter_.Borders().ChooseNone();
}

} // namespace torvik::rtf
