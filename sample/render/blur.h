#pragma once

#include <QImage>

namespace torvik::sample {

/// The picture out of focus; `radius` in pixels, below half a pixel it is returned as it is. Works on
/// premultiplied ARGB.
QImage Blurred(const QImage& picture, double radius);

} // namespace torvik::sample
