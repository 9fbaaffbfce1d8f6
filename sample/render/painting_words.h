#pragma once

#include "sample/drawings/script.h"
#include "sample/geometry/noise.h"
#include "sample/render/relief.h"

#include <QPainter>

namespace torvik::sample {

/// Teaches a script the words that paint, and those of a table top: wood, cloth, shadows, metal and gloss.
/// The painter has to outlive the script.
void TeachPainting(Script& script, QPainter& painter);
/// Teaches a script to build a medal: add(shape, coat, rise), and the coats chrome(), gold(), matte(colour),
/// enamel(colour) and rays(coat, count, place). The relief has to outlive it.
void TeachRelief(Script& script, Relief& relief);
/// The random words: between(low, high), unit() and below(count).
void TeachLuck(Script& script, Random& random);

} // namespace torvik::sample
