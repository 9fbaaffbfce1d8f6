#pragma once

#include "sample/sounds/sound.h"

#include <array>
#include <cstdint>
#include <vector>

namespace torvik::sample {

/// One cylinder's turn within two revolutions of the crankshaft.
struct Firing {
    double at;   ///< when, as a share of the two revolutions, 0 up to 1
    double bang; ///< how strong
    int pipe;    ///< which exhaust pipe takes it: 0 or 1
};

/// What makes an engine sound like itself.
struct EngineKind {
    std::vector<Firing> firings;
    double pulse = 0.0014;                     ///< seconds in which an exhaust valve lets its bang out
    std::array<double, 2> pipes = {1.5, 1.65}; ///< lengths of the exhaust pipes, metres
    double ring = 0.62;                        ///< how long the pipes go on sounding, 0 to below 1
    double muffler = 1400; ///< hertz; what lies above is swallowed, more so at a closed throttle
    double rough = 0.12;   ///< how unlike each other the bangs are
    double lope = 0;       ///< how much an idling engine stumbles, 0 to 1
    double intake = 0.25;  ///< the roar of air drawn in at full throttle
    double hiss = 0.10;    ///< noise of the gas itself
    double ticking = 0.05; ///< valve gear, or the knock of a diesel
    double tickHertz = 3200;
    double whine = 0;       ///< gears, blower or turbine
    double whineRatio = 12; ///< its pitch in turns for each turn of the crankshaft
    double crackle = 0;     ///< pops in the pipes when the throttle closes
};

/// Eight cylinders whose bangs fall unevenly on the two pipes (the burble), or alternate between them (the
/// scream of a racing engine); six flat ones cooled by a fan; two at an angle of 45 degrees, that fire one
/// shortly after the other.
extern const EngineKind burblingEight, screamingEight, straightSix, airCooledSix, straightFour, bigTwin,
    diesel, turbocharged;

/// How the engine is driven.
struct Driving {
    double seconds = 4;
    Course revs;     ///< revolutions a minute
    Course throttle; ///< 0 closed to 1 wide open
    std::uint32_t seed = 1;
};

/// The engine as heard from close by. Not levelled, so that throttle can be heard.
Sound RunEngine(const EngineKind& kind, const Driving& driving);

/// The same, its loudest moment at `level`.
Sound Running(const EngineKind& kind, const Driving& driving, double level = 1);

/// A starter motor that turns an engine which does not yet fire, `turns` compressions a second.
Sound CrankEngine(double seconds, double turns, std::uint32_t seed);

} // namespace torvik::sample
