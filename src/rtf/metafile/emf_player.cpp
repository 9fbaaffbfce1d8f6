#include "rtf/metafile/emf_player.h"

#include "rtf/metafile/emf_geometry.h"
#include "rtf/metafile/gdi_numbers.h"

#include <array>

namespace torvik::rtf {

namespace {

constexpr std::size_t emfRecordHeaderBytes = 8;
/// The bit of an object's number that says it exists without being made.
constexpr quint32 stockObjectFlag = 0x80000000;
constexpr std::size_t faceBytes = 64;

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
    while (canvas_.MayGoOn() && in.Has(at, emfRecordHeaderBytes)) {
        const auto type = static_cast<EmfRecord>(in.U32(at));
        const std::size_t size = in.U32(at + 4);
        if (size < emfRecordHeaderBytes || type == EmfRecord::Eof)
            return;
        const ByteReader record(in.Slice(at, size));
        if (!PlayState(type, record) && !PlayMapping(type, record) && !PlayObject(type, record) &&
            !PlayShape(type, record) && !PlayPoints(type, record) && !PlayPath(type))
            PlayBitmap(type, record);
        at += size;
    }
}

bool EmfPlayer::PlayState(EmfRecord type, const ByteReader& in)
{
    GdiState& state = canvas_.State();
    switch (type) {
    case EmfRecord::SetBkMode:
        state.isOpaque = BackgroundMode(in.U32(8)) == BackgroundMode::Opaque;
        return true;
    case EmfRecord::SetPolyFillMode:
        state.fillRule = PolyFillMode(in.U32(8)) == PolyFillMode::Winding ? Qt::WindingFill : Qt::OddEvenFill;
        return true;
    case EmfRecord::SetTextAlign:
        state.textAlign = in.S32(8);
        return true;
    case EmfRecord::SetTextColor:
        state.textColor = GdiColor(in.U32(8));
        return true;
    case EmfRecord::SetBkColor:
        state.backColor = GdiColor(in.U32(8));
        return true;
    case EmfRecord::IntersectClipRect:
        canvas_.ClipTo(EmfBox(in, 8), true);
        return true;
    case EmfRecord::SaveDc:
        canvas_.Save();
        return true;
    case EmfRecord::RestoreDc:
        canvas_.Restore(in.S32(8));
        return true;
    case EmfRecord::ExtSelectClipRgn:
        PlayClip(in);
        return true;
    default:
        return false;
    }
}

void EmfPlayer::PlayClip(const ByteReader& in)
{
    constexpr std::size_t boundsAt = 32;
    const auto mode = static_cast<RegionMode>(in.U32(12));
    if (in.U32(8) == 0)
        return canvas_.Unclip();
    if (mode != RegionMode::And && mode != RegionMode::Copy)
        return;
    // Regions are in units of the device, whatever the window is.
    const GdiMapping mapping = canvas_.State().mapping;
    canvas_.State().mapping = GdiMapping();
    canvas_.ClipTo(EmfBox(in, boundsAt), mode == RegionMode::And);
    canvas_.State().mapping = mapping;
}

bool EmfPlayer::PlayMapping(EmfRecord type, const ByteReader& in)
{
    GdiMapping& mapping = canvas_.State().mapping;
    const QSizeF size(in.S32(8), in.S32(12));
    switch (type) {
    case EmfRecord::SetWindowExtEx:
        if (mapping.scalesFreely)
            mapping.windowExtent = size;
        return true;
    case EmfRecord::SetWindowOrgEx:
        mapping.windowOrigin = EmfPoint(in, 8);
        return true;
    case EmfRecord::SetViewportExtEx:
        if (mapping.scalesFreely)
            mapping.viewportExtent = size;
        return true;
    case EmfRecord::SetViewportOrgEx:
        mapping.viewportOrigin = EmfPoint(in, 8);
        return true;
    case EmfRecord::SetMapMode:
        SetMapMode(static_cast<MapMode>(in.U32(8)));
        return true;
    case EmfRecord::SetWorldTransform:
        mapping.world = Transform(in, 8);
        return true;
    case EmfRecord::ModifyWorldTransform:
        ModifyWorldTransform(in);
        return true;
    default:
        return false;
    }
}

void EmfPlayer::ModifyWorldTransform(const ByteReader& in)
{
    QTransform& world = canvas_.State().mapping.world;
    const QTransform change = Transform(in, 8);
    switch (static_cast<ModifyWorld>(in.U32(32))) {
    case ModifyWorld::Identity:
        world = QTransform();
        break;
    case ModifyWorld::LeftMultiply:
        world = change * world;
        break;
    case ModifyWorld::RightMultiply:
        world = world * change;
        break;
    default:
        world = change;
        break;
    }
}

void EmfPlayer::SetMapMode(MapMode mode)
{
    GdiMapping& mapping = canvas_.State().mapping;
    mapping.scalesFreely = mode == MapMode::Isotropic || mode == MapMode::Anisotropic;
    mapping.isEven = mode == MapMode::Isotropic;
    switch (mode) {
    case MapMode::Text:
        mapping.windowExtent = {1, 1};
        mapping.viewportExtent = {1, 1};
        break;
    case MapMode::LoMetric:
        SetUnits(10);
        break;
    case MapMode::HiMetric:
        SetUnits(100);
        break;
    case MapMode::LoEnglish:
        SetUnits(100 / 25.4);
        break;
    case MapMode::HiEnglish:
        SetUnits(1000 / 25.4);
        break;
    case MapMode::Twips:
        SetUnits(1440 / 25.4);
        break;
    case MapMode::Isotropic:
    case MapMode::Anisotropic:
        break;
    }
}

void EmfPlayer::SetUnits(double perMillimetre)
{
    GdiMapping& mapping = canvas_.State().mapping;
    mapping.windowExtent = {perMillimetre, perMillimetre};
    // In these modes y grows upwards.
    mapping.viewportExtent = {unitsPerMillimetre_.width(), -unitsPerMillimetre_.height()};
}

bool EmfPlayer::PlayObject(EmfRecord type, const ByteReader& in)
{
    const quint32 number = in.U32(8);
    switch (type) {
    case EmfRecord::SelectObject:
        if ((number & stockObjectFlag) != 0)
            GdiObjects::Select(GdiStockObject(static_cast<StockObject>(number & 0xffU)), canvas_.State());
        else
            objects_.Select(number, canvas_.State());
        return true;
    case EmfRecord::CreatePen:
        objects_.Put(number, GdiPen(in.S32(12), in.S32(16), in.U32(24)));
        return true;
    case EmfRecord::ExtCreatePen:
        objects_.Put(number, GdiPen(in.S32(28), in.U32(32), in.U32(40)));
        return true;
    case EmfRecord::CreateBrushIndirect:
        objects_.Put(number, GdiBrush(in.S32(12), in.U32(16), in.S32(20)));
        return true;
    case EmfRecord::CreateMonoBrush:
        PutPattern(in, true);
        return true;
    case EmfRecord::CreateDibPatternBrushPt:
        PutPattern(in, false);
        return true;
    case EmfRecord::ExtCreateFontIndirectW:
        objects_.Put(number, ReadFont(in));
        return true;
    case EmfRecord::DeleteObject:
        objects_.Remove(number);
        return true;
    default:
        return false;
    }
}

bool EmfPlayer::PlayShape(EmfRecord type, const ByteReader& in)
{
    switch (type) {
    case EmfRecord::SetPixelV:
        canvas_.Pixel(EmfPoint(in, 8), GdiColor(in.U32(16)));
        return true;
    case EmfRecord::MoveToEx:
        canvas_.MoveTo(EmfPoint(in, 8));
        return true;
    case EmfRecord::LineTo:
        canvas_.LineTo(EmfPoint(in, 8));
        return true;
    case EmfRecord::Ellipse:
        canvas_.Ellipse(EmfBox(in, 8));
        return true;
    case EmfRecord::Rectangle:
        canvas_.Rectangle(EmfBox(in, 8));
        return true;
    case EmfRecord::RoundRect:
        canvas_.RoundedRectangle(EmfBox(in, 8), {double(in.S32(24)), double(in.S32(28))});
        return true;
    case EmfRecord::Arc:
        canvas_.Arc(EmfBox(in, 8), EmfPoint(in, 24), EmfPoint(in, 32), GdiCanvas::ArcKind::Open);
        return true;
    case EmfRecord::Chord:
        canvas_.Arc(EmfBox(in, 8), EmfPoint(in, 24), EmfPoint(in, 32), GdiCanvas::ArcKind::Chord);
        return true;
    case EmfRecord::Pie:
        canvas_.Arc(EmfBox(in, 8), EmfPoint(in, 24), EmfPoint(in, 32), GdiCanvas::ArcKind::Pie);
        return true;
    case EmfRecord::ExtTextOutA:
        PlayText(in, false);
        return true;
    case EmfRecord::ExtTextOutW:
        PlayText(in, true);
        return true;
    default:
        return false;
    }
}

bool EmfPlayer::PlayPath(EmfRecord type)
{
    switch (type) {
    case EmfRecord::BeginPath:
        canvas_.BeginPath();
        return true;
    case EmfRecord::EndPath:
        canvas_.EndPath();
        return true;
    case EmfRecord::AbortPath:
        canvas_.AbortPath();
        return true;
    case EmfRecord::CloseFigure:
        canvas_.CloseFigure();
        return true;
    case EmfRecord::FillPath:
        canvas_.DrawPath(false, true);
        return true;
    case EmfRecord::StrokeAndFillPath:
        canvas_.DrawPath(true, true);
        return true;
    case EmfRecord::StrokePath:
        canvas_.DrawPath(true, false);
        return true;
    default:
        return false;
    }
}

} // namespace torvik::rtf
