#pragma once

#include <QImage>

namespace torvik::sample {

/// What stands on the cover of the printed booklet, drawn for white paper. Each is printed at its natural
/// size, 96 points to the inch, at a place that the booklet fixes; the sizes are chosen so that the page
/// looks composed.

/// Shield and lettering of the car, 560 x 160.
QImage PaintBookletLogo();
/// The title of the booklet, 700 x 190.
QImage PaintBookletTitle();
/// The mark of the publisher, a sword with its cross guard, 420 x 130.
QImage PaintPublisherMark();

} // namespace torvik::sample
