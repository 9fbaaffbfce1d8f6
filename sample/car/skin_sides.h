#pragma once

#include "sample/car/skin.h"

namespace torvik::sample {

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
