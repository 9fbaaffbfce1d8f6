#include "rtf/metafile/emf_player.h"

#include <array>

namespace torvik::rtf {

namespace {

constexpr std::size_t recordHeaderBytes = 8;
constexpr quint32 endRecord = 14;
constexpr quint32 stockObject = 0x80000000;
constexpr std::size_t faceBytes = 64;

QPointF Point(const ByteReader& in, std::size_t at)
{
    return {double(in.S32(at)), double(in.S32(at + 4))};
}

QRectF Box(const ByteReader& in, std::size_t at)
{
    return {Point(in, at), Point(in, at + 8)};
}

QTransform Transform(const ByteReader& in, std::size_t at)
{
    std::array<double, 6> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = double(in.F32(at + i * 4));
        if (!(std::abs(values[i]) < 1e9))
            return {};
    }
    return {values[0], values[1], values[2], values[3], values[4], values[5]};
}

GdiFont ReadFont(const ByteReader& in)
{
    GdiFont font;
    font.height = in.S32(12);
    font.escapement = in.S32(20);
    font.weight = in.S32(28);
    font.italic = in.U8(32) != 0;
    font.underline = in.U8(33) != 0;
    font.strike = in.U8(34) != 0;
    font.charset = in.U8(35);
    for (std::size_t at = 40; at < 40 + faceBytes && in.U16(at) != 0; at += 2)
        font.family += QChar(in.U16(at));
    return font;
}

} // namespace

void EmfPlayer::Play(std::string_view bytes)
{
    const ByteReader in(bytes);
    std::size_t at = 0;
    while (canvas_.MayGoOn() && in.Has(at, recordHeaderBytes)) {
        const quint32 type = in.U32(at);
        const std::size_t size = in.U32(at + 4);
        if (size < recordHeaderBytes || type == endRecord)
            return;
        const ByteReader record(in.Slice(at, size));
        if (!PlayState(type, record) && !PlayMapping(type, record) && !PlayObject(type, record) &&
            !PlayShape(type, record) && !PlayPoints(type, record) && !PlayPath(type, record))
            PlayBitmap(type, record);
        at += size;
    }
}

bool EmfPlayer::PlayState(quint32 type, const ByteReader& in)
{
    GdiState& state = canvas_.State();
    switch (type) {
    case 18:
        state.isOpaque = in.U32(8) == 2;
        return true;
    case 19:
        state.fillRule = in.U32(8) == 2 ? Qt::WindingFill : Qt::OddEvenFill;
        return true;
    case 22:
        state.textAlign = in.S32(8);
        return true;
    case 24:
        state.textColor = GdiColor(in.U32(8));
        return true;
    case 25:
        state.backColor = GdiColor(in.U32(8));
        return true;
    case 30:
        canvas_.ClipTo(Box(in, 8), true);
        return true;
    case 33:
        canvas_.Save();
        return true;
    case 34:
        canvas_.Restore(in.S32(8));
        return true;
    case 75:
        PlayClip(in);
        return true;
    default:
        return false;
    }
}

void EmfPlayer::PlayClip(const ByteReader& in)
{
    constexpr quint32 combine = 1;
    constexpr quint32 copy = 5;
    constexpr std::size_t boundsAt = 32;
    const quint32 mode = in.U32(12);
    if (in.U32(8) == 0)
        return canvas_.Unclip();
    if (mode != combine && mode != copy)
        return;
    // Regions are in units of the device, whatever the window is.
    const GdiMapping mapping = canvas_.State().mapping;
    canvas_.State().mapping = GdiMapping();
    canvas_.ClipTo(Box(in, boundsAt), mode == combine);
    canvas_.State().mapping = mapping;
}

bool EmfPlayer::PlayMapping(quint32 type, const ByteReader& in)
{
    GdiMapping& mapping = canvas_.State().mapping;
    const QSizeF size(in.S32(8), in.S32(12));
    switch (type) {
    case 9:
        if (scalesFreely_)
            mapping.windowExtent = size;
        return true;
    case 10:
        mapping.windowOrigin = Point(in, 8);
        return true;
    case 11:
        if (scalesFreely_)
            mapping.viewportExtent = size;
        return true;
    case 12:
        mapping.viewportOrigin = Point(in, 8);
        return true;
    case 17:
        SetMapMode(in.U32(8));
        return true;
    case 35:
        mapping.world = Transform(in, 8);
        return true;
    case 36:
        if (in.U32(32) == 1)
            mapping.world = QTransform();
        else if (in.U32(32) == 2)
            mapping.world = Transform(in, 8) * mapping.world;
        else if (in.U32(32) == 3)
            mapping.world = mapping.world * Transform(in, 8);
        else
            mapping.world = Transform(in, 8);
        return true;
    default:
        return false;
    }
}

void EmfPlayer::SetMapMode(quint32 mode)
{
    // Units to the millimetre of the fixed modes: tenths and hundredths of a millimetre and of an inch,
    // twips.
    constexpr double unitsOfMode[] = {10, 100, 100 / 25.4, 1000 / 25.4, 1440 / 25.4};
    GdiMapping& mapping = canvas_.State().mapping;
    scalesFreely_ = mode == 7 || mode == 8;
    if (mode == 1) {
        mapping.windowExtent = {1, 1};
        mapping.viewportExtent = {1, 1};
    } else if (mode >= 2 && mode <= 6) {
        const double units = unitsOfMode[mode - 2];
        mapping.windowExtent = {units, units};
        // Here y grows upwards.
        mapping.viewportExtent = {unitsPerMillimetre_.width(), -unitsPerMillimetre_.height()};
    }
}

bool EmfPlayer::PlayObject(quint32 type, const ByteReader& in)
{
    const quint32 number = in.U32(8);
    switch (type) {
    case 37:
        if ((number & stockObject) != 0)
            GdiObjects::Select(GdiStockObject(static_cast<int>(number & 0xffU)), canvas_.State());
        else
            objects_.Select(number, canvas_.State());
        return true;
    case 38:
        objects_.Put(number, GdiPen(in.S32(12), in.S32(16), in.U32(24)));
        return true;
    case 95:
        objects_.Put(number, GdiPen(in.S32(28), in.U32(32), in.U32(40)));
        return true;
    case 39:
        objects_.Put(number, GdiBrush(in.S32(12), in.U32(16), in.S32(20)));
        return true;
    case 93:
    case 94:
        objects_.Put(number, QBrush(Qt::gray));
        return true;
    case 82:
        objects_.Put(number, ReadFont(in));
        return true;
    case 40:
        objects_.Remove(number);
        return true;
    default:
        return false;
    }
}

bool EmfPlayer::PlayShape(quint32 type, const ByteReader& in)
{
    switch (type) {
    case 15:
        canvas_.Pixel(Point(in, 8), GdiColor(in.U32(16)));
        return true;
    case 27:
        canvas_.MoveTo(Point(in, 8));
        return true;
    case 54:
        canvas_.LineTo(Point(in, 8));
        return true;
    case 42:
        canvas_.Ellipse(Box(in, 8));
        return true;
    case 43:
        canvas_.Rectangle(Box(in, 8));
        return true;
    case 44:
        canvas_.RoundedRectangle(Box(in, 8), {double(in.S32(24)), double(in.S32(28))});
        return true;
    case 45:
        canvas_.Arc(Box(in, 8), Point(in, 24), Point(in, 32), GdiCanvas::ArcKind::Open);
        return true;
    case 46:
        canvas_.Arc(Box(in, 8), Point(in, 24), Point(in, 32), GdiCanvas::ArcKind::Chord);
        return true;
    case 47:
        canvas_.Arc(Box(in, 8), Point(in, 24), Point(in, 32), GdiCanvas::ArcKind::Pie);
        return true;
    case 83:
        PlayText(in, false);
        return true;
    case 84:
        PlayText(in, true);
        return true;
    default:
        return false;
    }
}

bool EmfPlayer::PlayPath(quint32 type, const ByteReader&)
{
    switch (type) {
    case 59:
        canvas_.BeginPath();
        return true;
    case 60:
    case 68:
        canvas_.EndPath();
        return true;
    case 61:
        canvas_.CloseFigure();
        return true;
    case 62:
        canvas_.DrawPath(false, true);
        return true;
    case 63:
        canvas_.DrawPath(true, true);
        return true;
    case 64:
        canvas_.DrawPath(true, false);
        return true;
    default:
        return false;
    }
}

} // namespace torvik::rtf
