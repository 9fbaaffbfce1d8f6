#include "sample/sounds/effects.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>

namespace torvik::sample {

namespace {

Effect One(const char* file, double seconds, SoundForm form, Sound (*voice)())
{
    return {file, seconds, 1, form, [voice] { return std::vector<Sound>{voice()}; }};
}

Effect Two(const char* file, double seconds, SoundForm form, TwoEars (*voice)())
{
    return {file, seconds, 2, form, [voice] {
                TwoEars both = voice();
                return std::vector<Sound>{std::move(both.left), std::move(both.right)};
            }};
}

} // namespace

const std::vector<Effect>& SoundEffects()
{
    // Discs of the time mixed what their makers had: most at 22 kHz, some older ones with fewer bits.
    static constexpr SoundForm usual{22050, 16};
    static constexpr SoundForm old{22050, 8};
    static constexpr SoundForm oldest{11025, 8};
    static constexpr SoundForm dull{11025, 16};
    static const std::vector<Effect> effects{
        One("backfrng.wav", 4.0, usual, Backfiring),     One("car_door.wav", 2.8, usual, CarDoor),
        One("carhorns.wav", 4.6, old, CarHorns),         Two("horns.wav", 6.5, usual, Traffic),
        Two("cop-car.wav", 6.5, usual, PoliceCar),       One("taxi.wav", 3.6, oldest, TaxiHorns),
        One("sportcar.wav", 5.5, usual, SportsCar),      Two("18wheelr.wav", 7.0, usual, EighteenWheeler),
        One("peel-out.wav", 5.5, usual, DragStart),      Two("Track2.wav", 7.5, usual, AtTheTrack),
        Two("nascar.wav", 4.5, usual, StockCarsPass),    One("racecar.wav", 5.0, usual, RacingLap),
        Two("indy-car.wav", 4.0, usual, SpeedwayPass),   One("mcycle.wav", 6.0, usual, TwinMotorcycle),
        One("batmoble.wav", 6.0, usual, TurbineCar),     One("62sellark.wav", 5.0, old, GentleSix),
        One("63sellark.wav", 5.5, usual, SportyEight),   One("selstart.wav", 7.5, usual, ThreeStarts),
        One("passby.wav", 3.2, usual, PassingEight),     One("selcar.wav", 6.0, oldest, OldColumnShift),
        One("qr7start.wav", 5.0, usual, BigEightStart),  One("motorcyc2.wav", 5.5, usual, FourMotorcycle),
        One("hot_rod.wav", 6.0, usual, BlownHotRod),     One("red_lght.wav", 7.0, usual, RedLight),
        One("porche.wav", 6.0, usual, AirCooledStart),   One("stealth.wav", 4.5, usual, OpenRoadster),
        One("stuck.wav", 6.5, dull, StuckOnIce),         One("revnrun.wav", 6.0, usual, RevAndRun),
        Two("goingby.wav", 4.5, usual, GoingByInTheWet),
    };
    return effects;
}

QByteArray MakeEffect(const Effect& effect)
{
    constexpr double peak = 0.9;
    constexpr double rounding = 1.6;
    std::vector<Sound> channels = effect.make();
    double loudest = 1e-9;
    for (Sound& channel : channels) {
        channel = AtRate(Faded(Lasting(std::move(channel), effect.seconds), 0.004, 0.09), effect.form.rate);
        loudest = std::max(loudest, Loudest(channel));
    }
    // The highest peaks are rounded a little, so that single bangs do not make all the rest faint.
    for (Sound& channel : channels) {
        for (double& value : channel)
            value = peak * std::tanh(rounding * value / loudest) / std::tanh(rounding);
    }
    return WaveFile(channels, effect.form);
}

QByteArray EffectNamed(const char* file)
{
    for (const Effect& effect : SoundEffects()) {
        if (std::strcmp(effect.file, file) == 0)
            return MakeEffect(effect);
    }
    throw std::runtime_error("No sound effect of this name is planned.");
}

} // namespace torvik::sample
