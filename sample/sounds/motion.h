#pragma once

#include "sample/sounds/sound.h"

namespace torvik::sample {

/// Where a source of sound drives past a listener, who stands at the origin.
struct Drive {
    Course along;        ///< metres along the road for each second; the listener is at 0
    double aside = 5;    ///< metres between listener and road
    double dulled = 120; ///< metres after which air has taken most of the treble
};

/// What two ears hear.
struct TwoEars {
    Sound left;
    Sound right;
};

/// What reaches the listener: later and quieter with the distance, higher in pitch while the source comes
/// near and lower when it goes. As long as the source itself.
Sound Passing(const Sound& source, const Drive& drive);
/// The same for two ears; the road runs from left (negative places) to right.
TwoEars PassingBothEars(const Sound& source, const Drive& drive);

/// One sound for both ears, `place` from -1 (left) to 1 (right).
TwoEars Placed(const Sound& sound, double place);
void Add(TwoEars& onto, const TwoEars& what, double at = 0, double gain = 1);

} // namespace torvik::sample
