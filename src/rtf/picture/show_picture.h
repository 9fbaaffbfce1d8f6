#pragma once

#include "rtf/picture/picture_source.h"

#include <QImage>
#include <QSizeF>

namespace torvik::rtf {

class Budget;

struct ShownPicture {
    QImage image;
    /// Pixels at 96 to the inch.
    QSizeF size;
};

/// Makes the image that a source stands for, cropped, and the size at which it is shown. The image is null
/// when the bytes are no picture, end early, or would cost more than the document may.
ShownPicture ShowPicture(const PictureSource& source, Budget& budget);

} // namespace torvik::rtf
