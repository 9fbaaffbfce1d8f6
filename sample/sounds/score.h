#pragma once

#include "sample/sounds/sound.h"

#include <vector>

namespace torvik::sample {

/// The channels of a sound effect that drawings/effects.txt describes.
std::vector<Sound> PlayScore(const char* name);

} // namespace torvik::sample
