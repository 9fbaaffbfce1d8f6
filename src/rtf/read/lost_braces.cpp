#include "rtf/read/lost_braces.h"

namespace torvik::rtf {

bool IsHeaderTable(Destination destination)
{
    return destination == Destination::Styles || destination == Destination::Fonts ||
           destination == Destination::Colors || destination == Destination::Lists ||
           destination == Destination::ListOverrides;
}

bool BeginsText(std::string_view word, bool isOutside)
{
    return word == "par" || word == "sectd" || word == "trowd" || word == "cell" || word == "row" ||
           (isOutside && word == "pard");
}

bool ParagraphsFollow(Tokenizer ahead)
{
    constexpr int mostWords = 2000;
    for (int i = 0; i < mostWords; ++i) {
        const Token token = ahead.Next();
        if (token.kind == TokenKind::End || token.text == "rtf")
            return false;
        if (token.kind == TokenKind::Word && (token.text == "par" || token.text == "pard"))
            return true;
    }
    return false;
}

} // namespace torvik::rtf
