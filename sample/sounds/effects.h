#pragma once

#include "sample/sounds/motion.h"
#include "sample/sounds/wave_file.h"

#include <QByteArray>

#include <functional>
#include <vector>

namespace torvik::sample {

/// One of the sound effects of the disc.
struct Effect {
    const char* file;
    double seconds;
    int channels;
    SoundForm form;
    std::function<std::vector<Sound>()> make;
};

/// All of them, in the order of their buttons.
const std::vector<Effect>& SoundEffects();
/// The finished file: as long as planned, evenly loud, silent at both ends.
QByteArray MakeEffect(const Effect& effect);
/// The bytes of the effect of this name; throws std::runtime_error for a name that is not planned.
QByteArray EffectNamed(const char* file);

/// The effects that are not scores of drawings/effects.txt, as they follow formulas from sample to sample.
Sound Backfiring();
TwoEars EighteenWheeler();
Sound StuckOnIce();
Sound OldColumnShift();
Sound TurbineCar();

} // namespace torvik::sample
