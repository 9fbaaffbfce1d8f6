#pragma once

#include "sample/geometry/vec.h"

#include <QRgb>

namespace torvik::sample {

/// Linear light of a pixel as it stands in the picture.
Rgb LinearOfPixel(QRgb pixel);
/// Bends light above 0.8 softly toward 1, as film does.
Rgb Shoulder(const Rgb& light);
/// The premultiplied pixel of linear light; `cover` 0 to 1. Light without cover is no longer there.
QRgb PixelOf(const Rgb& light, double cover);
/// The opaque pixel of linear light.
QRgb PixelOf(const Rgb& light);

} // namespace torvik::sample
