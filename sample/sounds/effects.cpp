#include "sample/sounds/effects.h"

#include "sample/sounds/score.h"

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

Effect Score(const char* file, double seconds, int channels, SoundForm form, const char* name)
{
    return {file, seconds, channels, form, [name] { return PlayScore(name); }};
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
        One("backfrng.wav", 4.0, usual, Backfiring),
        Score("car_door.wav", 2.8, 1, usual, "carDoor"),
        Score("carhorns.wav", 4.6, 1, old, "carHorns"),
        Score("horns.wav", 6.5, 2, usual, "traffic"),
        Score("cop-car.wav", 6.5, 2, usual, "policeCar"),
        Score("taxi.wav", 3.6, 1, oldest, "taxiHorns"),
        Score("sportcar.wav", 5.5, 1, usual, "sportsCar"),
        Two("18wheelr.wav", 7.0, usual, EighteenWheeler),
        Score("peel-out.wav", 5.5, 1, usual, "dragStart"),
        Score("Track2.wav", 7.5, 2, usual, "atTheTrack"),
        Score("nascar.wav", 4.5, 2, usual, "stockCarsPass"),
        Score("racecar.wav", 5.0, 1, usual, "racingLap"),
        Score("indy-car.wav", 4.0, 2, usual, "speedwayPass"),
        Score("mcycle.wav", 6.0, 1, usual, "twinMotorcycle"),
        One("batmoble.wav", 6.0, usual, TurbineCar),
        Score("62sellark.wav", 5.0, 1, old, "gentleSix"),
        Score("63sellark.wav", 5.5, 1, usual, "sportyEight"),
        Score("selstart.wav", 7.5, 1, usual, "threeStarts"),
        Score("passby.wav", 3.2, 1, usual, "passingEight"),
        One("selcar.wav", 6.0, oldest, OldColumnShift),
        Score("qr7start.wav", 5.0, 1, usual, "bigEightStart"),
        Score("motorcyc2.wav", 5.5, 1, usual, "fourMotorcycle"),
        Score("hot_rod.wav", 6.0, 1, usual, "blownHotRod"),
        Score("red_lght.wav", 7.0, 1, usual, "redLight"),
        Score("porche.wav", 6.0, 1, usual, "airCooledStart"),
        Score("stealth.wav", 4.5, 1, usual, "openRoadster"),
        One("stuck.wav", 6.5, dull, StuckOnIce),
        Score("revnrun.wav", 6.0, 1, usual, "revAndRun"),
        Score("goingby.wav", 4.5, 2, usual, "goingByInTheWet"),
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
