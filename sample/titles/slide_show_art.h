#pragma once

#include <QImage>

namespace torvik::sample {

/// What the slide show opens with: framed transparencies in the light of a projector, with the title.
QImage PaintSlideShow(QSize size);

} // namespace torvik::sample
