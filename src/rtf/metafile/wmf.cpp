#include "rtf/metafile/wmf.h"

#include "rtf/bitmap/byte_reader.h"
#include "rtf/metafile/gdi_canvas.h"
#include "rtf/metafile/wmf_player.h"

#include <algorithm>
#include <cstdlib>

namespace torvik::rtf {

namespace {

constexpr quint32 placeableKey = 0x9ac6cdd7;
constexpr std::size_t placeableBytes = 22;
constexpr std::size_t wmfHeaderBytes = 18;
constexpr quint16 headerWords = 9;
constexpr int defaultUnitsPerInch = 1440;

bool HasHeader(const ByteReader& in, std::size_t at)
{
    const quint16 kind = in.U16(at);
    return in.Has(at, wmfHeaderBytes) && (kind == 1 || kind == 2) && in.U16(at + 2) == headerWords;
}

void ReadPlaceable(const ByteReader& in, Drawing& drawing)
{
    const QPointF origin(in.S16(6), in.S16(8));
    const QPointF corner(in.S16(10), in.S16(12));
    const QRectF box = QRectF(origin, corner).normalized();
    if (box.isEmpty())
        return;
    const int inch = in.U16(14) != 0 ? in.U16(14) : defaultUnitsPerInch;
    drawing.frame = box;
    drawing.naturalSize = box.size() * 96.0 / inch;
}

/// The first window that the records set is the picture; its device is the window itself.
void FindWindow(std::string_view records, Drawing& drawing)
{
    QPointF origin;
    QSizeF extent;
    WmfRecords walk(records);
    WmfRecord record;
    while (extent.isEmpty() && walk.Next(record)) {
        const ByteReader in(record.parameters);
        if (record.function == WmfFunction::SetWindowOrg)
            origin = {double(in.S16(2)), double(in.S16(0))};
        else if (record.function == WmfFunction::SetWindowExt)
            extent = {std::abs(double(in.S16(2))), std::abs(double(in.S16(0)))};
    }
    if (extent.isEmpty())
        return;
    drawing.frame = QRectF(origin, extent);
}

} // namespace

Drawing OpenWmf(std::string_view bytes)
{
    const ByteReader in(bytes);
    Drawing drawing;
    const bool isPlaceable = in.U32(0) == placeableKey;
    const std::size_t start = isPlaceable ? placeableBytes : 0;
    if (!HasHeader(in, start))
        return drawing;
    if (isPlaceable)
        ReadPlaceable(in, drawing);
    const std::string_view records = in.Slice(start + wmfHeaderBytes);
    if (drawing.frame.isEmpty())
        FindWindow(records, drawing);
    if (!drawing.frame.isEmpty()) {
        // Later windows are scaled to the area of the first.
        drawing.mapping.windowOrigin = drawing.frame.topLeft();
        drawing.mapping.windowExtent = drawing.frame.size();
        drawing.mapping.viewportExtent = drawing.frame.size();
        drawing.frame.moveTopLeft({0, 0});
    }
    drawing.play = [records](GdiCanvas& canvas) { WmfPlayer(canvas).Play(records); };
    return drawing;
}

} // namespace torvik::rtf
