#pragma once

#include "sample/scenery/scenery.h"

namespace torvik::sample {

/// The place that a file in drawings/ describes, all but its ground and lamps: the script's numbers and
/// colours have the names of the scenery's, what it leaves out stays as `given`. Its procedure "backdrop", if
/// it has one, draws what stands above the ground.
Scenery PlaceFrom(const char* name, std::uint32_t seed, Scenery given = {});

} // namespace torvik::sample
