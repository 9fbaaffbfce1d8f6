#include "rtf/metafile/emf_geometry.h"
#include "rtf/metafile/emf_player.h"
#include "rtf/metafile/gdi_letters.h"
#include "rtf/metafile/gdi_numbers.h"

#include <algorithm>
#include <utility>
#include <vector>

// The records of enhanced metafiles that write text.

namespace torvik::rtf {

namespace {

constexpr std::size_t longestEmfText = 4000;

/// The widths of the characters; with steps down as well, every second number is one of those.
std::vector<double> Advances(const ByteReader& in, std::size_t count)
{
    const std::size_t start = in.U32(72);
    const std::size_t step = (in.U32(52) & TextOptionStepsDown) != 0 ? 8 : 4;
    std::vector<double> advances;
    for (std::size_t i = 0; i < count && start != 0 && in.Has(start + i * step, 4); ++i)
        advances.push_back(in.S32(start + i * step));
    return advances;
}

} // namespace

void EmfPlayer::PlayText(const ByteReader& in, bool isWide)
{
    const std::size_t count = std::min<std::size_t>(in.U32(44), longestEmfText);
    const std::size_t textAt = in.U32(48);
    const GdiFont& font = canvas_.State().font;
    QString text;
    if (isWide) {
        for (std::size_t i = 0; i < count && in.Has(textAt + i * 2, 2); ++i)
            text += QChar(in.U16(textAt + i * 2));
        text = GdiLetters(font, std::move(text));
    } else {
        text = GdiLetters(font, in.Slice(textAt, count));
    }
    const QRectF box = EmfBox(in, 56);
    if ((in.U32(52) & TextOptionOpaque) != 0)
        canvas_.FillWith(box, canvas_.State().backColor);
    if (text.isEmpty())
        return;
    // There are as many widths as bytes, which fit only where each byte is one character.
    const bool fits = isWide || text.size() == static_cast<qsizetype>(count);
    const auto put = [&] {
        canvas_.Text(EmfPoint(in, 36), text, fits ? Advances(in, count) : std::vector<double>());
    };
    if ((in.U32(52) & TextOptionClipped) != 0)
        canvas_.Within(box, put);
    else
        put();
}

} // namespace torvik::rtf
