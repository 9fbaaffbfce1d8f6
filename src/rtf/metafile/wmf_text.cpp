#include "rtf/charset/code_page.h"
#include "rtf/charset/symbol_font.h"
#include "rtf/metafile/wmf_player.h"

// The records of the older metafiles that write text.

namespace torvik::rtf {

namespace {} // namespace

void WmfPlayer::PlayText(const ByteReader& in)
{
    const std::size_t length = in.U16(0);
    const std::size_t placeAt = 2 + (length + 1) / 2 * 2;
    PutText({double(in.S16(placeAt + 2)), double(in.S16(placeAt))}, in.Slice(2, length), {});
}

void WmfPlayer::PlayExtendedText(const ByteReader& in)
{
    const QPointF at(in.S16(2), in.S16(0));
    const std::size_t length = in.U16(4);
    const unsigned options = in.U16(6);
    std::size_t textAt = 8;
    if ((options & (TextOptionOpaque | TextOptionClipped)) != 0) {
        const QRectF box(QPointF(in.S16(8), in.S16(10)), QPointF(in.S16(12), in.S16(14)));
        textAt += 8;
        if ((options & TextOptionOpaque) != 0)
            canvas_.FillWith(box, canvas_.State().backColor);
    }
    const std::size_t advancesAt = textAt + (length + 1) / 2 * 2;
    std::vector<double> advances;
    for (std::size_t i = 0; i < length && in.Has(advancesAt, length * 2); ++i)
        advances.push_back(in.S16(advancesAt + i * 2));
    PutText(at, in.Slice(textAt, length), std::move(advances));
}

void WmfPlayer::PutText(const QPointF& at, std::string_view bytes, std::vector<double> advances)
{
    const GdiFont& font = canvas_.State().font;
    QString text;
    if (font.charset == symbolCharset) {
        CodePage::OfSymbols().Decode(bytes, text);
        for (QChar& c : text)
            c = SymbolCharacter(font.family, c.unicode());
    } else {
        const int page = CodePage::NumberForCharset(font.charset);
        CodePage::Of(page != 0 ? page : 1252).Decode(bytes, text);
    }
    // The widths are those of bytes, so they fit only where each byte is one character.
    if (text.size() != static_cast<qsizetype>(bytes.size()))
        advances.clear();
    if (!text.isEmpty())
        canvas_.Text(at, text, advances);
}

} // namespace torvik::rtf
