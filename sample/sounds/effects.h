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

/// What the single effects sound like; `effects.cpp` gives them their files. Most are a little longer than
/// their file, so that it can be cut at its end.

Sound Backfiring();
Sound CarDoor();
Sound CarHorns();
TwoEars Traffic();
TwoEars PoliceCar();
Sound TaxiHorns();
TwoEars EighteenWheeler();
Sound RedLight();
Sound StuckOnIce();
Sound PassingEight();
TwoEars GoingByInTheWet();

Sound SportsCar();
Sound DragStart();
TwoEars AtTheTrack();
TwoEars StockCarsPass();
Sound RacingLap();
TwoEars SpeedwayPass();
Sound TurbineCar();
Sound OpenRoadster();
Sound RevAndRun();

Sound TwinMotorcycle();
Sound FourMotorcycle();

Sound GentleSix();
Sound SportyEight();
Sound ThreeStarts();
Sound OldColumnShift();
Sound BigEightStart();
Sound BlownHotRod();
Sound AirCooledStart();

} // namespace torvik::sample
