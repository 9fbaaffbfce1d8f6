#pragma once

#include "sample/artwork/art_plan.h"

#include <QImage>

namespace torvik::sample {

/// The lettering on the car's flank, with the plate of an engine in years that had one to boast of; 240 x 72.
QImage PaintScript(const SmallPicture& script);

} // namespace torvik::sample
