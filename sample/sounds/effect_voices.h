#pragma once

#include "sample/sounds/motion.h"

namespace torvik::sample {

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
