#include "rtf/metafile/emf_geometry.h"
#include "rtf/metafile/emf_player.h"

// The records of enhanced metafiles that draw through many points, in their long and short forms.

namespace torvik::rtf {

namespace {

constexpr std::size_t countAt = 24;
constexpr std::size_t pointsAt = 28;

QPolygonF EmfPoints(const ByteReader& in, std::size_t at, std::size_t count, bool isShort)
{
    QPolygonF points;
    const std::size_t step = isShort ? 4 : 8;
    for (std::size_t i = 0; i < count && in.Has(at + i * step, step); ++i) {
        const std::size_t place = at + i * step;
        points.append(isShort ? QPointF(in.S16(place), in.S16(place + 2)) : EmfPoint(in, place));
    }
    return points;
}

} // namespace

bool EmfPlayer::PlayPoints(EmfRecord type, const ByteReader& in)
{
    const auto points = [&](PointSize size) {
        return EmfPoints(in, pointsAt, in.U32(countAt), size == PointSize::Short);
    };
    switch (type) {
    case EmfRecord::PolyBezier:
        canvas_.Bezier(points(PointSize::Long), false);
        return true;
    case EmfRecord::PolyBezier16:
        canvas_.Bezier(points(PointSize::Short), false);
        return true;
    case EmfRecord::Polygon:
        canvas_.Polygon(points(PointSize::Long));
        return true;
    case EmfRecord::Polygon16:
        canvas_.Polygon(points(PointSize::Short));
        return true;
    case EmfRecord::Polyline:
        canvas_.Polyline(points(PointSize::Long));
        return true;
    case EmfRecord::Polyline16:
        canvas_.Polyline(points(PointSize::Short));
        return true;
    case EmfRecord::PolyBezierTo:
        canvas_.Bezier(points(PointSize::Long), true);
        return true;
    case EmfRecord::PolyBezierTo16:
        canvas_.Bezier(points(PointSize::Short), true);
        return true;
    case EmfRecord::PolylineTo:
        canvas_.LinesTo(points(PointSize::Long));
        return true;
    case EmfRecord::PolylineTo16:
        canvas_.LinesTo(points(PointSize::Short));
        return true;
    case EmfRecord::PolyPolyline:
        PlayManyPoints(in, PointSize::Long, false);
        return true;
    case EmfRecord::PolyPolyline16:
        PlayManyPoints(in, PointSize::Short, false);
        return true;
    case EmfRecord::PolyPolygon:
        PlayManyPoints(in, PointSize::Long, true);
        return true;
    case EmfRecord::PolyPolygon16:
        PlayManyPoints(in, PointSize::Short, true);
        return true;
    default:
        return false;
    }
}

void EmfPlayer::PlayManyPoints(const ByteReader& in, PointSize size, bool closes)
{
    constexpr std::size_t countsAt = 32;
    const bool isShort = size == PointSize::Short;
    const std::size_t count = in.U32(countAt);
    if (!in.Has(countsAt, 4) || count > (in.Size() - countsAt) / 4)
        return;
    std::size_t at = countsAt + count * 4;
    std::vector<QPolygonF> polygons;
    for (std::size_t i = 0; i < count && at < in.Size(); ++i) {
        const std::size_t points = in.U32(countsAt + i * 4);
        polygons.push_back(EmfPoints(in, at, points, isShort));
        at += points * (isShort ? 4 : 8);
    }
    if (closes)
        return canvas_.PolyPolygon(polygons);
    for (const QPolygonF& polygon : polygons)
        canvas_.Polyline(polygon);
}

} // namespace torvik::rtf
