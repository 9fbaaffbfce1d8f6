#pragma once

#include "ui/forms/control.h"

#include <QColor>
#include <QImage>
#include <QWidget>

namespace torvik {

/// What a widget shows.
inline QImage Grab(QWidget& widget)
{
    return widget.grab().toImage();
}

inline QImage Grab(const Control& control)
{
    return Grab(control.Widget());
}

/// How many pixels have a colour.
inline int PixelsOf(const QImage& image, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

} // namespace torvik
