#pragma once

#include "sample/drawings/script.h"

namespace torvik::sample {

/// How a word is written with a broad pen.
struct Pen {
    double xHeight = 24; ///< pixels
    double broad = 0.24; ///< width of downward strokes, in x-heights
    double fine = 0.12;  ///< width of upward strokes, in x-heights
    double slant = 0.32; ///< how far letters lean, per height
    double spread = 1.0; ///< widens the letters
};

/// The word in joined handwriting as one shape, its line of writing at y = 0 and its left edge near x = 0.
/// Knows the letters of the names of the cars; throws std::out_of_range for others.
QPainterPath WriteWord(const QString& word, const Pen& pen);

/// Teaches a script ink(word, xHeight, broad, fine, spread): the word written with such a pen.
void TeachPen(Script& script);

} // namespace torvik::sample
