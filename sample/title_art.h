#pragma once

#include <QImage>

namespace torvik::sample {

/// The opening picture: several generations before the evening sea, with the title.
QImage PaintOpening(QSize size);
/// The title artwork of the start-up window, drawn for 600 x 400 and enlarged by `factor`.
QImage PaintSplash(int factor);
/// The program's sign.
QImage PaintIcon(int size);

} // namespace torvik::sample
