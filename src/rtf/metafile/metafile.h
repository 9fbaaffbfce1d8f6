#pragma once

#include <QImage>
#include <QSizeF>

#include <string_view>

namespace torvik::rtf {

/// A metafile turned into an image.
struct MetafileImage {
    QImage image;
    /// The size that the metafile gives itself, pixels at 96 to the inch; empty when it gives none.
    QSizeF naturalSize;
};

/// Draws a metafile of the older kind, with or without the placeable header. `shownSize` is the size in
/// pixels at which it will be seen, empty when that is not known. A bitmap that fills the metafile comes out
/// pixel by pixel; everything else is drawn at twice the shown size. Null when the bytes are no metafile or
/// show nothing.
MetafileImage DrawWmf(std::string_view bytes, const QSizeF& shownSize, qint64 mostBytes);
/// The same for the enhanced kind.
MetafileImage DrawEmf(std::string_view bytes, const QSizeF& shownSize, qint64 mostBytes);

} // namespace torvik::rtf
