#include "rtf/metafile/wmf_player.h"

namespace torvik::rtf {

namespace {

constexpr std::size_t recordHeaderBytes = 6;

QRectF Box(const ByteReader& in, std::size_t at)
{
    // Written from the lower right to the upper left, each as y before x.
    return {QPointF(in.S16(at + 6), in.S16(at + 4)), QPointF(in.S16(at + 2), in.S16(at))};
}

QPointF Point(const ByteReader& in, std::size_t at)
{
    return {double(in.S16(at + 2)), double(in.S16(at))};
}

QPolygonF Points(const ByteReader& in, std::size_t at, std::size_t count)
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
    if (!in_.Has(at_, recordHeaderBytes))
        return false;
    const std::size_t bytes = std::size_t(in_.U32(at_)) * 2;
    record.function = in_.U16(at_ + 4);
    if (bytes < recordHeaderBytes || record.function == 0)
        return false;
    record.parameters = in_.Slice(at_ + recordHeaderBytes, bytes - recordHeaderBytes);
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
    const quint16 function = record.function;
    if (PlayState(function, in) || PlayWindow(function, in) || PlayObject(function, in) ||
        PlayShape(function, in))
        return;
    PlayBitmap(function, in);
}

bool WmfPlayer::PlayState(quint16 function, const ByteReader& in)
{
    GdiState& state = canvas_.State();
    switch (function) {
    case 0x001e:
        canvas_.Save();
        return true;
    case 0x0127:
        canvas_.Restore(in.S16(0));
        return true;
    case 0x0102:
        state.isOpaque = in.U16(0) == 2;
        return true;
    case 0x0106:
        state.fillRule = in.U16(0) == 2 ? Qt::WindingFill : Qt::OddEvenFill;
        return true;
    case 0x0201:
        state.backColor = GdiColor(in.U32(0));
        return true;
    case 0x0209:
        state.textColor = GdiColor(in.U32(0));
        return true;
    case 0x012e:
        state.textAlign = in.U16(0);
        return true;
    case 0x0416:
        canvas_.ClipTo(Box(in, 0), true);
        return true;
    case 0x012c:
        // Regions themselves are not drawn with; selecting one at least ends the clipping so far.
        canvas_.Unclip();
        return true;
    default:
        return false;
    }
}

bool WmfPlayer::PlayWindow(quint16 function, const ByteReader& in)
{
    GdiMapping& mapping = canvas_.State().mapping;
    switch (function) {
    case wmfSetWindowOrigin:
        mapping.windowOrigin = Point(in, 0);
        return true;
    case wmfSetWindowExtent:
        mapping.windowExtent = {double(in.S16(2)), double(in.S16(0))};
        return true;
    case 0x020f:
        mapping.windowOrigin += Point(in, 0);
        return true;
    case 0x0410:
        mapping.windowExtent = Scaled(mapping.windowExtent, in);
        return true;
    default:
        return false;
    }
}

bool WmfPlayer::PlayObject(quint16 function, const ByteReader& in)
{
    switch (function) {
    case 0x02fa:
        objects_.Add(GdiPen(in.U16(0), in.S16(2), in.U32(6)));
        return true;
    case 0x02fc:
        objects_.Add(GdiBrush(in.U16(0), in.U32(2), in.U16(6)));
        return true;
    case 0x02fb: {
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
    case 0x01f9:
    case 0x0142:
        objects_.Add(QBrush(Qt::gray));
        return true;
    case 0x00f7:
    case 0x06ff:
        objects_.Add(std::monostate());
        return true;
    case 0x012d:
        objects_.Select(in.U16(0), canvas_.State());
        return true;
    case 0x01f0:
        objects_.Remove(in.U16(0));
        return true;
    default:
        return false;
    }
}

bool WmfPlayer::PlayShape(quint16 function, const ByteReader& in)
{
    switch (function) {
    case 0x0214:
        canvas_.MoveTo(Point(in, 0));
        return true;
    case 0x0213:
        canvas_.LineTo(Point(in, 0));
        return true;
    case 0x0325:
        canvas_.Polyline(Points(in, 2, in.U16(0)));
        return true;
    case 0x0324:
        canvas_.Polygon(Points(in, 2, in.U16(0)));
        return true;
    case 0x0538:
        PlayPolyPolygon(in);
        return true;
    case 0x041b:
        canvas_.Rectangle(Box(in, 0));
        return true;
    case 0x061c:
        canvas_.RoundedRectangle(Box(in, 4), {double(in.S16(2)), double(in.S16(0))});
        return true;
    case 0x0418:
        canvas_.Ellipse(Box(in, 0));
        return true;
    case 0x0817:
        canvas_.Arc(Box(in, 8), Point(in, 4), Point(in, 0), GdiCanvas::ArcKind::Open);
        return true;
    case 0x081a:
        canvas_.Arc(Box(in, 8), Point(in, 4), Point(in, 0), GdiCanvas::ArcKind::Pie);
        return true;
    case 0x0830:
        canvas_.Arc(Box(in, 8), Point(in, 4), Point(in, 0), GdiCanvas::ArcKind::Chord);
        return true;
    case 0x041f:
        canvas_.Pixel(Point(in, 4), GdiColor(in.U32(0)));
        return true;
    case 0x061d:
        canvas_.Fill({Point(in, 8), QSizeF(in.S16(6), in.S16(4))}, in.U32(0));
        return true;
    case 0x0521:
        PlayText(in);
        return true;
    case 0x0a32:
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
        polygons.push_back(Points(in, at, points));
        at += points * 4;
    }
    canvas_.PolyPolygon(polygons);
}

} // namespace torvik::rtf
