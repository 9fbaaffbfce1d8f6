#pragma once

#include <QImage>

namespace torvik::sample {

/// The opening picture: several generations before the evening sea, with the title.
QImage PaintOpening(QSize size);
/// The title artwork of the start-up window, drawn for 600 x 400 and enlarged by `factor`.
QImage PaintSplash(int factor);
/// The program's sign.
QImage PaintIcon(int size);

/// What the slide show opens with: framed transparencies in the light of a projector, with the title.
QImage PaintSlideShow(QSize size);

} // namespace torvik::sample
