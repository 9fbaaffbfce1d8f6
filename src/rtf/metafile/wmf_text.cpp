#include "rtf/metafile/gdi_letters.h"
#include "rtf/metafile/wmf_player.h"

#include <utility>

// The records of the older metafiles that write text.

namespace torvik::rtf {

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
    QRectF box;
    if ((options & (TextOptionOpaque | TextOptionClipped)) != 0) {
        box = QRectF(QPointF(in.S16(8), in.S16(10)), QPointF(in.S16(12), in.S16(14)));
        textAt += 8;
        if ((options & TextOptionOpaque) != 0)
            canvas_.FillWith(box, canvas_.State().backColor);
    }
    const std::size_t advancesAt = textAt + (length + 1) / 2 * 2;
    std::vector<double> advances;
    for (std::size_t i = 0; i < length && in.Has(advancesAt, length * 2); ++i)
        advances.push_back(in.S16(advancesAt + i * 2));
    const auto put = [&] { PutText(at, in.Slice(textAt, length), std::move(advances)); };
    if ((options & TextOptionClipped) != 0)
        canvas_.Within(box, put);
    else
        put();
}

void WmfPlayer::PutText(const QPointF& at, std::string_view bytes, std::vector<double> advances)
{
    const QString text = GdiLetters(canvas_.State().font, bytes);
    // The widths are those of bytes, so they fit only where each byte is one character.
    if (text.size() != static_cast<qsizetype>(bytes.size()))
        advances.clear();
    if (!text.isEmpty())
        canvas_.Text(at, text, advances);
}

} // namespace torvik::rtf
