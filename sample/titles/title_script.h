#pragma once

#include "sample/drawings/script.h"

namespace torvik::sample {

/// Paints onto a picture what a procedure of a file in drawings/ describes. The script knows the picture's
/// "w", "h" and "size", what `teach` tells it, and letters(words, middle, height, pixels, family, italic,
/// spacing): bold words round a point, taken from a font of so many pixels.
void PaintTitle(QImage& picture, const char* file, const char* procedure,
                const std::function<void(Script&)>& teach = {});

} // namespace torvik::sample
