#pragma once

#include <QByteArray>

#include <optional>

namespace torvik {

/// The outlines of a TrueType font: its tables `glyf` and `loca`, the latter with four bytes a place.
struct GlyphOutlines {
    QByteArray glyf;
    QByteArray loca;
};

/// The outlines alone, without the programs that fit them to the pixels of a screen. The places in `loca`
/// have four bytes when `isLong`, else two. Nothing comes back when the tables do not fit together.
std::optional<GlyphOutlines> OutlinesWithoutPrograms(const QByteArray& glyf, const QByteArray& loca,
                                                     bool isLong);

} // namespace torvik
