#include "rtf/charset/code_page.h"
#include "rtf/charset/symbol_font.h"
#include "rtf/metafile/emf_player.h"
#include "rtf/metafile/gdi_numbers.h"

#include <algorithm>

// The records of enhanced metafiles that write text.

namespace torvik::rtf {

namespace {

constexpr std::size_t longestEmfText = 4000;

} // namespace

void EmfPlayer::PlayText(const ByteReader& in, bool isWide)
{
    const std::size_t count = std::min<std::size_t>(in.U32(44), longestEmfText);
    const std::size_t textAt = in.U32(48);
    const std::size_t advancesAt = in.U32(72);
    const GdiFont& font = canvas_.State().font;
    QString text;
    if (isWide) {
        for (std::size_t i = 0; i < count && in.Has(textAt + i * 2, 2); ++i)
            text += QChar(in.U16(textAt + i * 2));
    } else {
        CodePage::Of(CodePage::NumberForCharset(font.charset)).Decode(in.Slice(textAt, count), text);
    }
    if (font.charset == symbolCharset) {
        for (QChar& c : text)
            c = SymbolCharacter(font.family, c.unicode());
    }
    if ((in.U32(52) & TextOptionOpaque) != 0)
        canvas_.FillWith({QPointF(in.S32(56), in.S32(60)), QPointF(in.S32(64), in.S32(68))},
                         canvas_.State().backColor);
    std::vector<double> advances;
    for (std::size_t i = 0; i < count && advancesAt != 0 && in.Has(advancesAt + i * 4, 4); ++i)
        advances.push_back(in.S32(advancesAt + i * 4));
    if (!text.isEmpty())
        canvas_.Text({double(in.S32(36)), double(in.S32(40))}, text, advances);
}

} // namespace torvik::rtf
