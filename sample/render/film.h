#pragma once

#include "sample/geometry/vec.h"

#include <QImage>
#include <QRgb>

#include <cstdint>

namespace torvik::sample {

/// Linear light of a pixel as it stands in the picture.
Rgb LinearOfPixel(QRgb pixel);
/// Bends light above 0.8 softly toward 1, as film does.
Rgb Shoulder(const Rgb& light);
/// The premultiplied pixel of linear light; `cover` 0 to 1. Light without cover is no longer there.
QRgb PixelOf(const Rgb& light, double cover);
/// The opaque pixel of linear light.
QRgb PixelOf(const Rgb& light);

/// The picture out of focus; `radius` in pixels, below half a pixel it is returned as it is. Works on
/// premultiplied ARGB.
QImage Blurred(const QImage& picture, double radius);

/// Makes a drawing look like a photograph of its year: highlights that bleed, darker corners, grain, and the
/// colours of the film of the time.
void Develop(QImage& picture, int year, std::uint32_t seed);

} // namespace torvik::sample
