#pragma once

#include <QByteArray>
#include <QImage>

namespace torvik::sample {

/// Drawings in the forms that rich text carries. All take a paletted picture (QImage::Format_Indexed8) of at
/// most 16 colours, and throw std::runtime_error where it cannot be encoded.

QByteArray PngOfDrawing(const QImage& drawing);
/// A device-independent bitmap without a file header: 4 bits a pixel, in runs.
QByteArray DibOfDrawing(const QImage& drawing);
/// A metafile that stretches the bitmap over its extent.
QByteArray MetafileOfDrawing(const QImage& drawing);

} // namespace torvik::sample
