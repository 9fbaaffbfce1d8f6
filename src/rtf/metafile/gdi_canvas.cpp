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

bool IsHatch(const QBrush& brush)
{
    return brush.style() >= Qt::HorPattern && brush.style() <= Qt::DiagCrossPattern;
}

/// The same path with every figure closed.
QPainterPath Closed(const QPainterPath& path)
{
    QPainterPath closed;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            closed.closeSubpath();
            closed.moveTo(element);
        } else if (element.isCurveTo() && i + 2 < path.elementCount()) {
            closed.cubicTo(element, path.elementAt(i + 1), path.elementAt(i + 2));
            i += 2;
        } else {
            closed.lineTo(element);
        }
    }
    closed.closeSubpath();
    return closed;
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

QBrush GdiCanvas::CanvasBrush() const
{
    QImage pattern = state_.brush.style() == Qt::TexturePattern ? state_.brush.textureImage() : QImage();
    if (pattern.format() != QImage::Format_Mono)
        return state_.brush;
    pattern.setColorTable({state_.textColor.rgb(), state_.backColor.rgb()});
    return QBrush(pattern.convertToFormat(QImage::Format_RGB32));
}

void GdiCanvas::Draw(const QPainterPath& path, bool stroke, bool fill)
{
    if (path_)
        path_->addPath(Map(path));
    else
        Paint(Map(path), stroke, fill);
}

void GdiCanvas::Paint(QPainterPath mapped, bool stroke, bool fill)
{
    if (mapped.isEmpty())
        return;
    ++survey_.shapes;
    mapped.setFillRule(state_.fillRule);
    const QRectF bounds = mapped.controlPointRect();
    const QRectF seen = painter_ != nullptr ? bounds & QRectF(painter_->viewport()) : QRectF();
    const double length = bounds.width() + bounds.height();
    const QSize pattern =
        state_.brush.style() == Qt::TexturePattern ? state_.brush.textureImage().size() : QSize(0, 0);
    Spend(double(pattern.width()) * pattern.height());
    if (!Note(bounds,
              workOfShape + workOfPoint * mapped.elementCount() + seen.width() * seen.height() + length))
        return;
    if (fill && state_.isOpaque && IsHatch(state_.brush))
        painter_->fillPath(mapped, state_.backColor);
    painter_->setPen(stroke ? CanvasPen() : QPen(Qt::NoPen));
    painter_->setBrush(fill ? CanvasBrush() : QBrush(Qt::NoBrush));
    painter_->drawPath(mapped);
}

void GdiCanvas::MoveTo(const QPointF& to)
{
    state_.position = to;
    if (path_)
        path_->moveTo(Map(to));
}

/// Readies the path for lines from the current position: they belong to the figure that ends there, or begin
/// one.
void GdiCanvas::ContinuePath()
{
    const QPointF from = Map(state_.position);
    if (path_->elementCount() == 0 || path_->currentPosition() != from)
        path_->moveTo(from);
}

void GdiCanvas::LineTo(const QPointF& to)
{
    LinesTo({to});
}

void GdiCanvas::LinesTo(const QPolygonF& points)
{
    if (points.isEmpty())
        return;
    if (path_) {
        ContinuePath();
        for (const QPointF& point : points)
            path_->lineTo(Map(point));
    } else {
        Polyline(QPolygonF({state_.position}) + points);
    }
    state_.position = points.last();
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
    if (points.isEmpty())
        return;
    QPainterPath path;
    qsizetype at = 0;
    path.moveTo(fromPosition ? state_.position : points.at(at++));
    for (; at + 2 < points.size(); at += 3)
        path.cubicTo(points.at(at), points.at(at + 1), points.at(at + 2));
    if (path_ && fromPosition) {
        ContinuePath();
        path_->connectPath(Map(path));
    } else {
        Draw(path, true, false);
    }
    if (fromPosition)
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
    // Neither this nor what is filled with a colour becomes a part of a path.
    QPainterPath path;
    path.addRect(rect.normalized());
    Paint(Map(path), false, true);
}

void GdiCanvas::FillWith(const QRectF& rect, const QColor& color)
{
    const QBrush brush = state_.brush;
    state_.brush = color;
    QPainterPath path;
    path.addRect(rect.normalized());
    Paint(Map(path), false, true);
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

void GdiCanvas::AbortPath()
{
    path_.reset();
    finished_ = QPainterPath();
}

void GdiCanvas::CloseFigure()
{
    if (path_ && path_->elementCount() > 0)
        path_->closeSubpath();
}

void GdiCanvas::DrawPath(bool stroke, bool fill)
{
    const QPainterPath path = std::exchange(finished_, QPainterPath());
    Paint(stroke && fill ? Closed(path) : path, stroke, fill);
}

void GdiCanvas::ClipTo(const QRectF& rect, bool intersect)
{
    const QRectF mapped = QRectF(Map(rect.topLeft()), Map(rect.bottomRight())).normalized();
    state_.clip = intersect && state_.isClipped ? state_.clip & mapped : mapped;
    state_.isClipped = true;
    ApplyClip();
}

void GdiCanvas::Within(const QRectF& box, const std::function<void()>& draw)
{
    const QRectF clip = state_.clip;
    const bool isClipped = state_.isClipped;
    ClipTo(box, true);
    draw();
    state_.clip = clip;
    state_.isClipped = isClipped;
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
