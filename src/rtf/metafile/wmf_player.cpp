#include "rtf/metafile/wmf_player.h"

#include "rtf/metafile/gdi_numbers.h"

namespace torvik::rtf {

namespace {

constexpr std::size_t wmfRecordHeaderBytes = 6;

QRectF WmfBox(const ByteReader& in, std::size_t at)
{
    // Written from the lower right to the upper left, each as y before x.
    return {QPointF(in.S16(at + 6), in.S16(at + 4)), QPointF(in.S16(at + 2), in.S16(at))};
}

QPointF WmfPoint(const ByteReader& in, std::size_t at)
{
    return {double(in.S16(at + 2)), double(in.S16(at))};
}

QPolygonF WmfPoints(const ByteReader& in, std::size_t at, std::size_t count)
{
    QPolygonF points;
    for (std::size_t i = 0; i < count && in.Has(at + i * 4, 4); ++i)
        points.append(QPointF(in.S16(at + i * 4), in.S16(at + i * 4 + 2)));
    return points;
}

QSizeF Scaled(const QSizeF& size, const ByteReader& in)
{
    const double down = in.S16(0) != 0 ? double(in.S16(2)) / in.S16(0) : 1;
    const double across = in.S16(4) != 0 ? double(in.S16(6)) / in.S16(4) : 1;
    return {size.width() * across, size.height() * down};
}

} // namespace

bool WmfRecords::Next(WmfRecord& record)
{
    if (!in_.Has(at_, wmfRecordHeaderBytes))
        return false;
    const std::size_t bytes = std::size_t(in_.U32(at_)) * 2;
    record.function = static_cast<WmfFunction>(in_.U16(at_ + 4));
    if (bytes < wmfRecordHeaderBytes || record.function == WmfFunction::EndOfFile)
        return false;
    record.parameters = in_.Slice(at_ + wmfRecordHeaderBytes, bytes - wmfRecordHeaderBytes);
    at_ += bytes;
    return true;
}

void WmfPlayer::Play(std::string_view records)
{
    WmfRecords walk(records);
    WmfRecord record;
    while (canvas_.MayGoOn() && walk.Next(record))
        Play(record);
}

void WmfPlayer::Play(const WmfRecord& record)
{
    const ByteReader in(record.parameters);
    const WmfFunction function = record.function;
    if (PlayState(function, in) || PlayWindow(function, in) || PlayObject(function, in) ||
        PlayShape(function, in))
        return;
    PlayBitmap(function, in);
}

bool WmfPlayer::PlayState(WmfFunction function, const ByteReader& in)
{
    GdiState& state = canvas_.State();
    switch (function) {
    case WmfFunction::SaveDc:
        canvas_.Save();
        return true;
    case WmfFunction::RestoreDc:
        canvas_.Restore(in.S16(0));
        return true;
    case WmfFunction::SetBkMode:
        state.isOpaque = BackgroundMode(in.U16(0)) == BackgroundMode::Opaque;
        return true;
    case WmfFunction::SetPolyFillMode:
        state.fillRule = PolyFillMode(in.U16(0)) == PolyFillMode::Winding ? Qt::WindingFill : Qt::OddEvenFill;
        return true;
    case WmfFunction::SetBkColor:
        state.backColor = GdiColor(in.U32(0));
        return true;
    case WmfFunction::SetTextColor:
        state.textColor = GdiColor(in.U32(0));
        return true;
    case WmfFunction::SetTextAlign:
        state.textAlign = in.U16(0);
        return true;
    case WmfFunction::IntersectClipRect:
        canvas_.ClipTo(WmfBox(in, 0), true);
        return true;
    case WmfFunction::SelectClipRegion:
        // Regions are not supported; selecting one at least ends the clipping that holds.
        canvas_.Unclip();
        return true;
    default:
        return false;
    }
}

bool WmfPlayer::PlayWindow(WmfFunction function, const ByteReader& in)
{
    GdiMapping& mapping = canvas_.State().mapping;
    switch (function) {
    case WmfFunction::SetWindowOrg:
        mapping.windowOrigin = WmfPoint(in, 0);
        return true;
    case WmfFunction::SetWindowExt:
        mapping.windowExtent = {double(in.S16(2)), double(in.S16(0))};
        return true;
    case WmfFunction::OffsetWindowOrg:
        mapping.windowOrigin += WmfPoint(in, 0);
        return true;
    case WmfFunction::ScaleWindowExt:
        mapping.windowExtent = Scaled(mapping.windowExtent, in);
        return true;
    default:
        return false;
    }
}

bool WmfPlayer::PlayObject(WmfFunction function, const ByteReader& in)
{
    switch (function) {
    case WmfFunction::CreatePenIndirect:
        objects_.Add(GdiPen(in.U16(0), in.S16(2), in.U32(6)));
        return true;
    case WmfFunction::CreateBrushIndirect:
        objects_.Add(GdiBrush(in.U16(0), in.U32(2), in.U16(6)));
        return true;
    case WmfFunction::CreateFontIndirect: {
        GdiFont font;
        font.height = in.S16(0);
        font.escapement = in.S16(4);
        font.weight = in.S16(8);
        font.italic = in.U8(10) != 0;
        font.underline = in.U8(11) != 0;
        font.strike = in.U8(12) != 0;
        font.charset = in.U8(13);
        const std::string_view face = in.Slice(18, 32);
        font.family = QString::fromLatin1(face.substr(0, face.find('\0')).data(),
                                          static_cast<qsizetype>(std::min(face.find('\0'), face.size())));
        objects_.Add(font);
        return true;
    }
    case WmfFunction::CreatePatternBrush:
    case WmfFunction::DibCreatePatternBrush:
        AddPattern(function, in);
        return true;
    case WmfFunction::CreatePalette:
    case WmfFunction::CreateRegion:
        objects_.Add(std::monostate());
        return true;
    case WmfFunction::SelectObject:
        objects_.Select(in.U16(0), canvas_.State());
        return true;
    case WmfFunction::DeleteObject:
        objects_.Remove(in.U16(0));
        return true;
    default:
        return false;
    }
}

bool WmfPlayer::PlayShape(WmfFunction function, const ByteReader& in)
{
    switch (function) {
    case WmfFunction::MoveTo:
        canvas_.MoveTo(WmfPoint(in, 0));
        return true;
    case WmfFunction::LineTo:
        canvas_.LineTo(WmfPoint(in, 0));
        return true;
    case WmfFunction::Polyline:
        canvas_.Polyline(WmfPoints(in, 2, in.U16(0)));
        return true;
    case WmfFunction::Polygon:
        canvas_.Polygon(WmfPoints(in, 2, in.U16(0)));
        return true;
    case WmfFunction::PolyPolygon:
        PlayPolyPolygon(in);
        return true;
    case WmfFunction::Rectangle:
        canvas_.Rectangle(WmfBox(in, 0));
        return true;
    case WmfFunction::RoundRect:
        canvas_.RoundedRectangle(WmfBox(in, 4), {double(in.S16(2)), double(in.S16(0))});
        return true;
    case WmfFunction::Ellipse:
        canvas_.Ellipse(WmfBox(in, 0));
        return true;
    case WmfFunction::Arc:
        canvas_.Arc(WmfBox(in, 8), WmfPoint(in, 4), WmfPoint(in, 0), GdiCanvas::ArcKind::Open);
        return true;
    case WmfFunction::Pie:
        canvas_.Arc(WmfBox(in, 8), WmfPoint(in, 4), WmfPoint(in, 0), GdiCanvas::ArcKind::Pie);
        return true;
    case WmfFunction::Chord:
        canvas_.Arc(WmfBox(in, 8), WmfPoint(in, 4), WmfPoint(in, 0), GdiCanvas::ArcKind::Chord);
        return true;
    case WmfFunction::SetPixel:
        canvas_.Pixel(WmfPoint(in, 4), GdiColor(in.U32(0)));
        return true;
    case WmfFunction::PatBlt:
        canvas_.Fill({WmfPoint(in, 8), QSizeF(in.S16(6), in.S16(4))},
                     static_cast<RasterOperation>(in.U32(0)));
        return true;
    case WmfFunction::TextOut:
        PlayText(in);
        return true;
    case WmfFunction::ExtTextOut:
        PlayExtendedText(in);
        return true;
    default:
        return false;
    }
}

void WmfPlayer::PlayPolyPolygon(const ByteReader& in)
{
    const std::size_t count = in.U16(0);
    std::vector<QPolygonF> polygons;
    std::size_t at = 2 + count * 2;
    for (std::size_t i = 0; i < count && in.Has(at, 4); ++i) {
        const std::size_t points = in.U16(2 + i * 2);
        polygons.push_back(WmfPoints(in, at, points));
        at += points * 4;
    }
    canvas_.PolyPolygon(polygons);
}

} // namespace torvik::rtf
