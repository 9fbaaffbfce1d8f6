#include "rtf/metafile/emf.h"

#include "rtf/bitmap/byte_reader.h"
#include "rtf/bounds/limits.h"
#include "rtf/metafile/emf_geometry.h"
#include "rtf/metafile/emf_player.h"
#include "rtf/metafile/gdi_canvas.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

constexpr std::size_t emfHeaderBytes = 88;
constexpr quint32 emfSignature = 0x464d4520;

/// Device units in a millimetre; a header without sizes is taken for a screen's.
QSizeF UnitsPerMillimetre(const ByteReader& in)
{
    constexpr double screenUnits = 96 / 25.4;
    const double across = in.S32(80) > 0 ? double(in.S32(72)) / in.S32(80) : screenUnits;
    const double down = in.S32(84) > 0 ? double(in.S32(76)) / in.S32(84) : screenUnits;
    return {across > 0 ? across : screenUnits, down > 0 ? down : screenUnits};
}

} // namespace

Drawing OpenEmf(std::string_view bytes)
{
    const ByteReader in(bytes);
    Drawing drawing;
    if (!in.Has(0, emfHeaderBytes) || EmfRecord(in.U32(0)) != EmfRecord::Header || in.U32(40) != emfSignature)
        return drawing;
    const QSizeF units = UnitsPerMillimetre(in);
    const QRectF frame = EmfBox(in, 24).normalized();
    if (!frame.isEmpty()) {
        drawing.naturalSize = frame.size() * pixelsPerHundredthMillimetre;
        drawing.frame = QRectF(frame.left() / 100 * units.width(), frame.top() / 100 * units.height(),
                               frame.width() / 100 * units.width(), frame.height() / 100 * units.height());
    } else {
        drawing.frame = EmfBox(in, 8).normalized();
    }
    drawing.play = [bytes, units](GdiCanvas& canvas) { EmfPlayer(canvas, units).Play(bytes); };
    return drawing;
}

} // namespace torvik::rtf
