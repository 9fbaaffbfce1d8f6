#pragma once

#include "sample/sounds/sound.h"

#include <QString>

namespace torvik::sample {

/// The channels of the sound that a procedure of drawings/effects.txt or movie_sounds.txt composes; the
/// numbers are what it is called with.
std::vector<Sound> PlayScore(const char* file, const QString& name, const std::vector<double>& numbers = {});

} // namespace torvik::sample
