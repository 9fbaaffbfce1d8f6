#pragma once

#include <QByteArray>
#include <QHashFunctions>

namespace torvik::rtf {

enum class PictureKind { Unknown, Png, Jpeg, Dib, DeviceBitmap, Wmf, Emf };

/// A picture as the document holds it: its bytes and what is said about its size.
struct PictureSource {
    PictureKind kind = PictureKind::Unknown;
    QByteArray data;
    /// Width and height in the picture's own unit: pixels, or hundredths of a millimetre for metafiles.
    int width = 0;
    int height = 0;
    /// Wanted width and height in twips, 0 for none.
    int goalWidth = 0;
    int goalHeight = 0;
    /// Percent.
    int scaleX = 100;
    int scaleY = 100;
    /// What is cut off each side, twips of the unscaled picture.
    int cropLeft = 0;
    int cropTop = 0;
    int cropRight = 0;
    int cropBottom = 0;
    /// For bitmaps that depend on a device: bits for each pixel and bytes for each line.
    int bitsPerPixel = 1;
    int lineBytes = 0;

    bool operator==(const PictureSource&) const = default;
};

inline std::size_t qHash(const PictureSource& source, std::size_t seed)
{
    return qHashMulti(seed, source.data, source.width, source.height, source.goalWidth, source.goalHeight,
                      source.scaleX, source.scaleY, source.cropLeft, source.cropTop, source.cropRight,
                      source.cropBottom, source.bitsPerPixel, source.lineBytes);
}

} // namespace torvik::rtf
