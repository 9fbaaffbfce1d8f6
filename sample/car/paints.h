#pragma once

#include "sample/car/skin.h"

namespace torvik::sample {

/// A lacquer by its name and its colour, 0xRRGGBB.
Paint Named(const char* name, QRgb colour, double metallic);
/// The colours of the colour card of the year.
const std::vector<Paint>& PaintsOfYear(int year);

} // namespace torvik::sample
