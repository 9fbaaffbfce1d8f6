#pragma once

#include "rtf/metafile/gdi_numbers.h"
#include "rtf/metafile/gdi_state.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace torvik::rtf {

/// A bitmap as a record of a drawing brings it.
struct GdiBitmap {
    std::string_view header;
    std::string_view pixels;
    /// Pixels of the bitmap, from its upper left; empty for all of it. Sides may be negative, which mirrors
    /// it.
    QRect source;
    bool sourceFromBottom = false;
    /// Where it goes, in the drawing's units; sides may be negative, which mirrors it.
    QRectF target;
    RasterOperation operation = RasterOperation::SourceCopy;
    /// From 0 for nothing to 1 for all of it.
    double opacity = 1;
    /// Whether the fourth byte of each pixel tells how much of it is seen.
    bool hasAlpha = false;
    /// Of two colours: where it has the first, nothing is seen of the bitmap. Null for none. The upper left
    /// of what is shown lies at `maskOrigin`.
    QImage mask;
    QPoint maskOrigin;
    /// Already decoded bitmaps come this way.
    QImage image;
};

/// What the bitmap of a brush may take, bytes.
inline constexpr qint64 mostPatternBytes = 1024LL * 1024;
/// What reading it costs, in pixels painted.
inline constexpr double workOfPatternPixel = 8;

/// The part of a bitmap of some size that is shown.
QRect GdiSource(const GdiBitmap& bitmap, const QSize& size);
/// That part as an image; null when it cannot be read or would take more than `mostBytes` bytes.
QImage DecodeGdiBitmap(const GdiBitmap& bitmap, qint64 mostBytes);

/// What a drawing consists of, found out before it is drawn.
struct GdiSurvey {
    int shapes = 0;
    int bitmaps = 0;
    /// Some bitmap is combined with what is below it.
    bool combines = false;
    /// Some bitmap is not shown as it is stored: combined, cut or see-through.
    bool changesBitmap = false;
    /// The first bitmap, and its place on the canvas.
    GdiBitmap first;
    QRectF firstPlace;
    /// Whether the first one is turned over, left for right and top for bottom.
    bool firstIsMirroredAcross = false;
    bool firstIsMirroredDown = false;
    QRectF bounds;
    /// The largest number of a bitmap's pixels that fall on one unit of the canvas.
    double densityX = 0;
    double densityY = 0;
};

/// A coordinate of the canvas, brought in where it is too far out to be painted in reasonable time.
double Near(double value);

/// The surface that the records of a drawing act upon. Without a painter it only takes stock.
class GdiCanvas {
public:
    /// `mostBytes` bounds each decoded bitmap.
    GdiCanvas(QPainter* painter, const GdiMapping& mapping, const QTransform& deviceToCanvas,
              qint64 mostBytes);

    GdiState& State() { return state_; }
    const GdiSurvey& Survey() const { return survey_; }
    void Save();
    /// Negative counts back from now, positive is the number of the saved state.
    void Restore(int which);

    void MoveTo(const QPointF& to);
    void LineTo(const QPointF& to);
    /// From the current position through all points, the last of which becomes the position.
    void LinesTo(const QPolygonF& points);
    void Polyline(const QPolygonF& points);
    void Polygon(const QPolygonF& points) { PolyPolygon({points}); }
    void PolyPolygon(const std::vector<QPolygonF>& polygons);
    /// Curves in threes of points after the first; `fromPosition` starts at the current position.
    void Bezier(const QPolygonF& points, bool fromPosition);
    void Rectangle(const QRectF& rect);
    void RoundedRectangle(const QRectF& rect, const QSizeF& corner);
    void Ellipse(const QRectF& rect);
    enum class ArcKind { Open, Chord, Pie };
    void Arc(const QRectF& rect, const QPointF& from, const QPointF& to, ArcKind kind);
    void Fill(const QRectF& rect, RasterOperation operation);
    void FillWith(const QRectF& rect, const QColor& color);
    void Pixel(const QPointF& at, const QColor& color);
    void Bitmap(const GdiBitmap& given);
    /// `advances` are the widths of the single characters in the drawing's units, empty for the font's own.
    void Text(const QPointF& at, const QString& text, const std::vector<double>& advances);
    void ClipTo(const QRectF& rect, bool intersect);
    void Unclip();
    /// Draws what `draw` does, cut at a box as well.
    void Within(const QRectF& box, const std::function<void()>& draw);

    void BeginPath() { path_.emplace(); }
    void EndPath();
    /// Forgets the path, whether it is still open or already ended.
    void AbortPath();
    void CloseFigure();
    void DrawPath(bool stroke, bool fill);

    /// Counts what a drawing costs that is no painting, in pixels.
    void Spend(double work) { workLeft_ -= work; }
    /// False once a drawing has cost so much that the rest of it is left out.
    bool MayGoOn() const { return workLeft_ > 0; }

private:
    QTransform ToCanvas() const { return state_.mapping.ToDevice() * deviceToCanvas_; }
    QPointF Map(const QPointF& point) const;
    QPainterPath Map(const QPainterPath& path) const;
    double Scale() const;
    void Draw(const QPainterPath& path, bool stroke, bool fill);
    void Paint(QPainterPath mapped, bool stroke, bool fill);
    void ContinuePath();
    bool Note(const QRectF& bounds, double work);
    void ApplyClip();
    QPen CanvasPen() const;
    QBrush CanvasBrush() const;
    QFont CanvasFont() const;

    QPainter* painter_;
    QTransform deviceToCanvas_;
    qint64 mostBytes_;
    GdiState state_;
    std::vector<GdiState> saved_;
    /// The path that is being made and the one that was ended, on the canvas: what is drawn with them later
    /// may have other units.
    std::optional<QPainterPath> path_;
    QPainterPath finished_;
    GdiSurvey survey_;
    double workLeft_;
};

} // namespace torvik::rtf
