#include "rtf/charset/code_page.h"
#include "rtf/charset/symbol_font.h"
#include "rtf/metafile/emf_player.h"

#include <algorithm>

// The records of enhanced metafiles that carry a bitmap or a text.

namespace torvik::rtf {

namespace {

constexpr quint32 sourceCopy = 0xcc0020;
constexpr int symbolCharset = 2;
constexpr std::size_t longestText = 4000;

QRect SourceRect(const ByteReader& in, std::size_t placeAt, std::size_t sizeAt)
{
    const auto side = [&](std::size_t at) { return std::clamp(in.S32(at), -100000, 100000); };
    return {side(placeAt), side(placeAt + 4), side(sizeAt), side(sizeAt + 4)};
}

QRectF TargetRect(const ByteReader& in, std::size_t placeAt, std::size_t sizeAt)
{
    return {double(in.S32(placeAt)), double(in.S32(placeAt + 4)), double(in.S32(sizeAt)),
            double(in.S32(sizeAt + 4))};
}

} // namespace

bool EmfPlayer::PlayBitmap(quint32 type, const ByteReader& in)
{
    switch (type) {
    case 76:
    case 78:
        PutBitmap(in, 84, SourceRect(in, 44, 32), TargetRect(in, 24, 32), in.U32(40));
        return true;
    case 77:
        PutBitmap(in, 84, SourceRect(in, 44, 100), TargetRect(in, 24, 32), in.U32(40));
        return true;
    case 114:
        PutBitmap(in, 84, SourceRect(in, 44, 100), TargetRect(in, 24, 32), sourceCopy);
        return true;
    case 80:
        PutBitmap(in, 48, SourceRect(in, 32, 40), TargetRect(in, 24, 40), sourceCopy);
        return true;
    case 81:
        PutBitmap(in, 48, SourceRect(in, 32, 40), TargetRect(in, 24, 72), in.U32(68));
        return true;
    default:
        return false;
    }
}

void EmfPlayer::PutBitmap(const ByteReader& in, std::size_t placesAt, const QRect& source,
                          const QRectF& target, quint32 operation)
{
    GdiBitmap bitmap;
    bitmap.header = in.Slice(in.U32(placesAt), in.U32(placesAt + 4));
    bitmap.pixels = in.Slice(in.U32(placesAt + 8), in.U32(placesAt + 12));
    if (in.U32(placesAt + 4) == 0)
        return canvas_.Fill(target, operation);
    bitmap.source = source;
    bitmap.target = target;
    bitmap.operation = operation;
    // Only the two records that take pixels straight from memory count their lines from below.
    bitmap.sourceFromBottom = placesAt == 48;
    canvas_.Bitmap(bitmap);
}

void EmfPlayer::PlayText(const ByteReader& in, bool isWide)
{
    constexpr quint32 optionOpaque = 2;
    const std::size_t count = std::min<std::size_t>(in.U32(44), longestText);
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
    if ((in.U32(52) & optionOpaque) != 0)
        canvas_.FillWith({QPointF(in.S32(56), in.S32(60)), QPointF(in.S32(64), in.S32(68))},
                         canvas_.State().backColor);
    std::vector<double> advances;
    for (std::size_t i = 0; i < count && advancesAt != 0 && in.Has(advancesAt + i * 4, 4); ++i)
        advances.push_back(in.S32(advancesAt + i * 4));
    if (!text.isEmpty())
        canvas_.Text({double(in.S32(36)), double(in.S32(40))}, text, advances);
}

} // namespace torvik::rtf
