#include "rtf/metafile/emf_player.h"

// The records of enhanced metafiles that draw through many points, in their long and short forms.

namespace torvik::rtf {

namespace {

constexpr std::size_t countAt = 24;
constexpr std::size_t pointsAt = 28;

QPolygonF Points(const ByteReader& in, std::size_t at, std::size_t count, bool isShort)
{
    QPolygonF points;
    const std::size_t step = isShort ? 4 : 8;
    for (std::size_t i = 0; i < count && in.Has(at + i * step, step); ++i) {
        const std::size_t place = at + i * step;
        points.append(isShort ? QPointF(in.S16(place), in.S16(place + 2))
                              : QPointF(in.S32(place), in.S32(place + 4)));
    }
    return points;
}

} // namespace

bool EmfPlayer::PlayPoints(quint32 type, const ByteReader& in)
{
    const bool isShort = type >= 85;
    const quint32 longType = isShort ? type - 83 : type;
    if (longType < 2 || longType > 8 || type > 91)
        return false;
    const auto points = [&] { return Points(in, pointsAt, in.U32(countAt), isShort); };
    switch (longType) {
    case 2:
        canvas_.Bezier(points(), false);
        break;
    case 3:
        canvas_.Polygon(points());
        break;
    case 4:
        canvas_.Polyline(points());
        break;
    case 5:
        canvas_.Bezier(points(), true);
        break;
    case 6:
        for (const QPointF& point : points())
            canvas_.LineTo(point);
        break;
    default:
        PlayManyPoints(in, isShort, longType == 8);
        break;
    }
    return true;
}

void EmfPlayer::PlayManyPoints(const ByteReader& in, bool isShort, bool closes)
{
    constexpr std::size_t countsAt = 32;
    const std::size_t count = in.U32(countAt);
    if (!in.Has(countsAt, 4) || count > (in.Size() - countsAt) / 4)
        return;
    std::size_t at = countsAt + count * 4;
    std::vector<QPolygonF> polygons;
    for (std::size_t i = 0; i < count && at < in.Size(); ++i) {
        const std::size_t points = in.U32(countsAt + i * 4);
        polygons.push_back(Points(in, at, points, isShort));
        at += points * (isShort ? 4 : 8);
    }
    if (closes)
        return canvas_.PolyPolygon(polygons);
    for (const QPolygonF& polygon : polygons)
        canvas_.Polyline(polygon);
}

} // namespace torvik::rtf
