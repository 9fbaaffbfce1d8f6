#include "rtf/metafile/gdi_canvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace torvik::rtf {

namespace {

constexpr std::size_t maxSavedStates = 256;
/// Points further out than this are brought in: the painter walks along every pixel of a dashed line.
constexpr double farthestPixel = 20000;
/// What a whole drawing may cost, counted in pixels painted.
constexpr double workAllowed = 4e8;
constexpr double workOfShape = 500;
constexpr double workOfPoint = 50;

double AngleOf(const QRectF& rect, const QPointF& towards)
{
    const QPointF offset = towards - rect.center();
    const double x = rect.width() == 0 ? 0 : offset.x() / rect.width();
    const double y = rect.height() == 0 ? 0 : offset.y() / rect.height();
    return std::atan2(-y, x) * 180 / std::numbers::pi;
}

} // namespace

double Near(double value)
{
    if (std::isnan(value))
        return 0;
    return std::clamp(value, -farthestPixel, farthestPixel);
}

GdiCanvas::GdiCanvas(QPainter* painter, const GdiMapping& mapping, const QTransform& deviceToCanvas,
                     qint64 mostBytes)
    : painter_(painter), deviceToCanvas_(deviceToCanvas), mostBytes_(mostBytes), workLeft_(workAllowed)
{
    state_.mapping = mapping;
}

void GdiCanvas::Save()
{
    if (saved_.size() < maxSavedStates)
        saved_.push_back(state_);
}

void GdiCanvas::Restore(int which)
{
    const auto count = static_cast<long long>(saved_.size());
    const long long place = which < 0 ? count + which : which - 1LL;
    if (place < 0 || place >= count)
        return;
    state_ = saved_[static_cast<std::size_t>(place)];
    saved_.resize(static_cast<std::size_t>(place));
    ApplyClip();
}

QPointF GdiCanvas::Map(const QPointF& point) const
{
    const QPointF mapped = ToCanvas().map(point);
    return {Near(mapped.x()), Near(mapped.y())};
}

QPainterPath GdiCanvas::Map(const QPainterPath& path) const
{
    QPainterPath mapped = ToCanvas().map(path);
    for (int i = 0; i < mapped.elementCount(); ++i) {
        const QPainterPath::Element element = mapped.elementAt(i);
        mapped.setElementPositionAt(i, Near(element.x), Near(element.y));
    }
    return mapped;
}

double GdiCanvas::Scale() const
{
    const double area = std::abs(ToCanvas().determinant());
    return std::isfinite(area) ? std::clamp(std::sqrt(area), 1e-6, 1e4) : 1;
}

bool GdiCanvas::Note(const QRectF& bounds, double work)
{
    workLeft_ -= work;
    survey_.bounds |= bounds.adjusted(0, 0, 1e-3, 1e-3);
    return painter_ != nullptr && MayGoOn();
}

QPen GdiCanvas::CanvasPen() const
{
    QPen pen = state_.pen;
    pen.setWidthF(std::clamp(pen.widthF() * Scale(), 1.0, 2000.0));
    return pen;
}

void GdiCanvas::Draw(const QPainterPath& path, bool stroke, bool fill)
{
    if (path_) {
        path_->addPath(path);
        return;
    }
    ++survey_.shapes;
    QPainterPath mapped = Map(path);
    mapped.setFillRule(state_.fillRule);
    const QRectF bounds = mapped.controlPointRect();
    const QRectF seen = painter_ != nullptr ? bounds & QRectF(painter_->viewport()) : QRectF();
    const double length = bounds.width() + bounds.height();
    if (!Note(bounds,
              workOfShape + workOfPoint * mapped.elementCount() + seen.width() * seen.height() + length))
        return;
    painter_->setPen(stroke ? CanvasPen() : QPen(Qt::NoPen));
    painter_->setBrush(fill ? state_.brush : QBrush(Qt::NoBrush));
    painter_->drawPath(mapped);
}

void GdiCanvas::MoveTo(const QPointF& to)
{
    state_.position = to;
    if (path_)
        path_->moveTo(to);
}

void GdiCanvas::LineTo(const QPointF& to)
{
    if (path_) {
        if (path_->elementCount() == 0)
            path_->moveTo(state_.position);
        path_->lineTo(to);
    } else {
        Polyline({state_.position, to});
    }
    state_.position = to;
}

void GdiCanvas::Polyline(const QPolygonF& points)
{
    if (points.size() < 2)
        return;
    QPainterPath path;
    path.addPolygon(points);
    Draw(path, true, false);
}

void GdiCanvas::PolyPolygon(const std::vector<QPolygonF>& polygons)
{
    QPainterPath path;
    for (const QPolygonF& polygon : polygons) {
        if (polygon.size() < 2)
            continue;
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    Draw(path, true, true);
}

void GdiCanvas::Bezier(const QPolygonF& points, bool fromPosition)
{
    QPainterPath path;
    qsizetype at = 0;
    if (fromPosition)
        path.moveTo(state_.position);
    else if (!points.isEmpty())
        path.moveTo(points.at(at++));
    for (; at + 2 < points.size(); at += 3)
        path.cubicTo(points.at(at), points.at(at + 1), points.at(at + 2));
    Draw(path, true, false);
    if (fromPosition && !points.isEmpty())
        state_.position = points.last();
}

void GdiCanvas::Rectangle(const QRectF& rect)
{
    QPainterPath path;
    path.addRect(rect.normalized());
    Draw(path, true, true);
}

void GdiCanvas::RoundedRectangle(const QRectF& rect, const QSizeF& corner)
{
    QPainterPath path;
    path.addRoundedRect(rect.normalized(), std::abs(corner.width()) / 2, std::abs(corner.height()) / 2);
    Draw(path, true, true);
}

void GdiCanvas::Ellipse(const QRectF& rect)
{
    QPainterPath path;
    path.addEllipse(rect.normalized());
    Draw(path, true, true);
}

void GdiCanvas::Arc(const QRectF& rect, const QPointF& from, const QPointF& to, ArcKind kind)
{
    const QRectF box = rect.normalized();
    const double start = AngleOf(box, from);
    double sweep = AngleOf(box, to) - start;
    if (sweep <= 0)
        sweep += 360;
    QPainterPath path;
    if (kind == ArcKind::Pie)
        path.moveTo(box.center());
    else
        path.arcMoveTo(box, start);
    path.arcTo(box, start, sweep);
    if (kind != ArcKind::Open)
        path.closeSubpath();
    Draw(path, true, kind != ArcKind::Open);
}

void GdiCanvas::Fill(const QRectF& rect, RasterOperation operation)
{
    if (operation == RasterOperation::Blackness)
        return FillWith(rect, Qt::black);
    if (operation == RasterOperation::Whiteness)
        return FillWith(rect, Qt::white);
    if (operation != RasterOperation::PatternCopy)
        return;
    QPainterPath path;
    path.addRect(rect.normalized());
    Draw(path, false, true);
}

void GdiCanvas::FillWith(const QRectF& rect, const QColor& color)
{
    const QBrush brush = state_.brush;
    state_.brush = color;
    QPainterPath path;
    path.addRect(rect.normalized());
    Draw(path, false, true);
    state_.brush = brush;
}

void GdiCanvas::Pixel(const QPointF& at, const QColor& color)
{
    FillWith(QRectF(at, QSizeF(1, 1)), color);
}

void GdiCanvas::EndPath()
{
    if (path_)
        finished_ = *path_;
    path_.reset();
}

void GdiCanvas::CloseFigure()
{
    if (path_ && path_->elementCount() > 0)
        path_->closeSubpath();
}

void GdiCanvas::DrawPath(bool stroke, bool fill)
{
    Draw(std::exchange(finished_, QPainterPath()), stroke, fill);
}

void GdiCanvas::ClipTo(const QRectF& rect, bool intersect)
{
    const QRectF mapped = QRectF(Map(rect.topLeft()), Map(rect.bottomRight())).normalized();
    state_.clip = intersect && state_.isClipped ? state_.clip & mapped : mapped;
    state_.isClipped = true;
    ApplyClip();
}

void GdiCanvas::Unclip()
{
    state_.isClipped = false;
    ApplyClip();
}

void GdiCanvas::ApplyClip()
{
    if (painter_ == nullptr)
        return;
    if (state_.isClipped)
        painter_->setClipRect(state_.clip);
    else
        painter_->setClipping(false);
}

} // namespace torvik::rtf
