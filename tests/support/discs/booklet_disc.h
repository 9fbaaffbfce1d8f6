#pragma once

#include "support/discs/test_disc.h"

#include <QColor>
#include <QPoint>
#include <QSize>
#include <QString>

#include <array>

namespace torvik {

/// A picture of the booklet's cover: where it belongs, and what stands for it in a test.
struct CoverArt {
    const char* file; ///< on the disc, with forward slashes
    const char* format;
    QPoint place; ///< twips
    QSize size;   ///< pixels; each has a width of its own
    QColor colour;
};

/// In the order in which they are printed.
inline const std::array<CoverArt, 4> coverArt{{
    {"graphics/logo.jpg", "JPG", {1600, 1600}, {500, 100}, QColor(220, 20, 20)},
    {"clipart/97clip.jpg", "JPG", {2600, 4300}, {300, 200}, QColor(20, 160, 20)},
    {"graphics/bklettxt.jpg", "JPG", {500, 8800}, {600, 150}, QColor(20, 20, 220)},
    {"graphics/quillon3.bmp", "BMP", {2800, 12000}, {200, 80}, QColor(230, 160, 0)},
}};

/// Puts the pictures of the cover on a disc.
void AddCover(TestDisc& disc);

/// Puts the introduction on a disc; its text is "Introduction.".
void AddIntroduction(TestDisc& disc);

/// Puts the four documents of a year on a disc, by the prefix of their names; their texts are "Description of
/// 67.", "Options of 67.", "Statistics of 67." and "Colors of 67.".
void AddYear(TestDisc& disc, const QString& prefix);

} // namespace torvik
