#pragma once

#include "sample/car/skin.h"
#include "sample/drawings/script.h"

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

/// Teaches a script the words that paint on sheets, and the looks that occur everywhere. A look is a list of
/// colour, metal, glass, roughness and glow. The painter has to outlive the script.
void TeachSkin(Script& script, SkinPainter& painter);

} // namespace torvik::sample
