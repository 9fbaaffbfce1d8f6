#pragma once

#include <QImage>
#include <QSize>

namespace torvik {

class Picture;

/// A frame fills a window: an opaque image of the window's size in the screen's own pixels.

/// Nothing but black.
QImage BlackFrame(const QSize& pixels);
/// The picture on black, as large as fits, proportions kept, centred. Failure 481 when it is damaged.
QImage PhotoFrame(const Picture& picture, const QSize& pixels);
/// What stands where there are no photos: the title, and a word on how to get some. It stands somewhere else
/// at each turn (0, 1, ...), so that it burns into no screen.
QImage CardFrame(const QSize& pixels, int turn);

} // namespace torvik
