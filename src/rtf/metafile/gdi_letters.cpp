#include "rtf/metafile/gdi_letters.h"

#include "rtf/charset/code_page.h"
#include "rtf/charset/symbol_font.h"

#include <utility>

namespace torvik::rtf {

bool ShowsSymbols(const GdiFont& font)
{
    return font.charset == symbolCharset || font.family == QLatin1StringView("Symbol") ||
           font.family.startsWith(QLatin1StringView("Wingdings"));
}

QString GdiLetters(const GdiFont& font, std::string_view bytes)
{
    QString text;
    if (ShowsSymbols(font))
        CodePage::OfSymbols().Decode(bytes, text);
    else
        CodePage::Of(CodePage::NumberForCharset(font.charset)).Decode(bytes, text);
    return GdiLetters(font, std::move(text));
}

QString GdiLetters(const GdiFont& font, QString text)
{
    if (ShowsSymbols(font)) {
        for (QChar& c : text)
            c = SymbolCharacter(font.family, c.unicode());
    }
    return text;
}

} // namespace torvik::rtf
