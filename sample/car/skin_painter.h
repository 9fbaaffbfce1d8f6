#pragma once

#include "sample/car/skin.h"
#include "sample/geometry/shapes.h"

#include <memory>

namespace torvik::sample {

/// How a shape on a sheet looks. What is negative is left as it was.
struct Surface {
    QBrush colour;
    int metal = 0;
    int glass = 0;
    int rough = 0;
    int glow = 0;
};

/// Draws colour, material and relief of a sheet at once, in metres with v upward.
class SkinPainter {
public:
    SkinPainter(double left, double bottom, double width, double height, double pixelsPerMetre,
                const QColor& base);

    void Fill(const QPainterPath& path, const Surface& look);
    void Line(const QPainterPath& path, double width, const Surface& look);
    /// Raises (or sinks) a line; `steps` of 0.1 mm.
    void Ridge(const QPainterPath& path, double width, int steps);
    /// Raises a whole shape with a soft edge of the given width.
    void Raise(const QPainterPath& path, double edge, int steps);
    /// A gap between panels: dark and sunk.
    void Gap(const QPainterPath& path);
    /// A bar of bright metal with a rounded face.
    void ChromeBar(const QPainterPath& path, double width);
    void Text(const QString& text, double u, double v, double height, const QString& family, bool italic,
              bool mirrored, const Surface& look);
    SkinMap Finish();

private:
    QImage colour_;
    QImage material_;
    QImage relief_;
    std::unique_ptr<QPainter> colourPainter_;
    std::unique_ptr<QPainter> materialPainter_;
    std::unique_ptr<QPainter> reliefPainter_;
    double left_;
    double bottom_;
    double scale_;
};

QPainterPath RoundedPath(double u0, double v0, double u1, double v1, double radius);

/// Looks that occur everywhere.
inline const Surface chromeLook{QColor(246, 246, 248), 255, 0, 0, 0};
inline const Surface rubberLook{QColor(34, 34, 36), 0, 0, 215, 0};
inline const Surface darkLook{QColor(10, 10, 11), 0, 0, 235, 0};
inline const Surface glassLook{QColor(30, 38, 40), 0, 255, 0, 0};

SkinMap DrawSideSkin(const CarShape& shape, const Paint& paint, const Trim& trim, CarSide side,
                     double pointsPerMetre);
SkinMap DrawTopSkin(const CarShape& shape, const Paint& paint, const Trim& trim, double pointsPerMetre);
SkinMap DrawFrontSkin(const CarShape& shape, const Paint& paint, const Trim& trim, double pointsPerMetre);
SkinMap DrawRearSkin(const CarShape& shape, const Paint& paint, const Trim& trim, double pointsPerMetre);
/// The face of wheel and tyre, centred on the hub.
SkinMap DrawWheelSkin(const CarShape& shape, const Paint& paint, const Trim& trim, double pointsPerMetre);

/// The number plate with its middle at (u, v); used by front and rear.
class SkinPainter;
void DrawPlate(SkinPainter& painter, double u, double v, const QString& text);

} // namespace torvik::sample
