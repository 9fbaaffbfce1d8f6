#include "sample/sounds/road.h"

#include "sample/geometry/noise.h"
#include "sample/geometry/vec.h"
#include "sample/sounds/filters.h"

namespace torvik::sample {

Sound CarHorn(double seconds, const std::vector<double>& tones, double harsh)
{
    Sound horn = Silence(seconds);
    for (const double tone : tones) {
        // The diaphragm needs a moment to find its pitch, and sags when the button is let go.
        const Course hertz = [=](double t) {
            return tone * (1 - 0.06 * std::exp(-t / 0.018) - 0.05 * SmoothStep(seconds - 0.05, seconds, t)) *
                   (1 + 0.002 * std::sin(2 * pi * 23 * t));
        };
        Add(horn, RichTone(seconds, hertz, 24, 1.1 - 0.5 * harsh), 0, 0.5);
    }
    horn = Driven(std::move(horn), 0.8 + 1.6 * harsh);
    Sound bell = Filtered(horn, Filter::BandPass(tones.front() * 4.6, 1.4));
    Add(bell, horn, 0, 0.35);
    return Faded(std::move(bell), 0.012, 0.035);
}

Sound TruckHorn(double seconds)
{
    Sound horn = Silence(seconds);
    for (const double tone : {155.0, 196.0, 233.0}) {
        const Course hertz = [=](double t) {
            return tone * (1 - 0.10 * std::exp(-t / 0.09) - 0.12 * SmoothStep(seconds - 0.2, seconds, t));
        };
        Add(horn, RichTone(seconds, hertz, 40, 0.9), 0, 0.35);
    }
    Sound air = Filtered(WhiteNoise(seconds, 18), Filter::BandPass(1800, 0.7));
    Add(horn, air, 0, 0.12);
    horn = Filtered(Driven(std::move(horn), 1.3), Filter::BandPass(620, 0.45));
    return Faded(std::move(horn), 0.07, 0.16);
}

Sound Siren(double seconds, double swings)
{
    const Course hertz = [=](double t) {
        const double turn = swings * t - std::floor(swings * t);
        // Up is quicker than down.
        const double up = turn < 0.42 ? turn / 0.42 : (1 - turn) / 0.58;
        return 560 + 780 * std::pow(SmoothStep(0, 1, up), 0.8);
    };
    Sound siren = Driven(RichTone(seconds, hertz, 9, 1.2), 1.5);
    return Faded(Filtered(std::move(siren), Filter::BandPass(1500, 0.5)), 0.08, 0.1);
}

Sound TyreSqueal(double seconds, const Course& pressure, std::uint32_t seed)
{
    const Sound drift = SlowNoise(seconds, 9, seed);
    const Sound flutter = SlowNoise(seconds, 63, seed + 1);
    const auto at = [](const Sound& sound, double t) {
        return sound.empty() ? 0.0 : sound[std::min(sound.size() - 1, SamplesIn(t))];
    };
    Sound squeal = Silence(seconds);
    // Two wheels, never quite of one mind; rubber sticks and slips, so the tone is rough.
    int wheel = 0;
    for (const double base : {905.0, 1130.0}) {
        const double turn = ++wheel;
        const Course hertz = [=, &drift, &flutter, &pressure](double t) {
            return base * (0.86 + 0.16 * pressure(t) + 0.05 * at(drift, t * (turn == 1 ? 1.0 : 0.93)) +
                           0.035 * at(flutter, t));
        };
        Add(squeal, RichTone(seconds, hertz, 7, 1.25), 0, 0.5);
    }
    squeal = Driven(std::move(squeal), 1.6);
    Sound scrub = Filtered(WhiteNoise(seconds, seed + 3), Filter::BandPass(1500, 0.9));
    Add(squeal, scrub, 0, 0.9);
    squeal = Filtered(std::move(squeal), Filter::HighPass(350));
    return Shaped(std::move(squeal), [&](double t) { return std::pow(Clamp01(pressure(t)), 1.5); });
}

Sound TyreRoll(double seconds, const Course& speed, double wet, std::uint32_t seed)
{
    Sound low = Filtered(WhiteNoise(seconds, seed), Filter::BandPass(620, 0.5));
    Sound high = Filtered(WhiteNoise(seconds, seed + 1), Filter::BandPass(3800, 0.5));
    Sound roll = std::move(low);
    Add(roll, high, 0, 0.12 + 0.9 * wet);
    return Shaped(std::move(roll), [&](double t) { return std::pow(std::max(0.0, speed(t)) / 25.0, 1.4); });
}

Sound Rolling(double seconds, double speed, double wet, std::uint32_t seed, double level)
{
    return Levelled(TyreRoll(seconds, Always(speed), wet, seed), level);
}

Sound WheelOnIce(double seconds, const Course& spin, std::uint32_t seed)
{
    const Sound shiver = SlowNoise(seconds, 24, seed);
    const Course hertz = [&](double t) {
        const double now = shiver.empty() ? 0.0 : shiver[std::min(shiver.size() - 1, SamplesIn(t))];
        return 120 + 640 * spin(t) + 25 * now;
    };
    Sound whirr = Filtered(RichTone(seconds, hertz, 9, 1.0), Filter::BandPass(900, 0.7));
    Sound spray = Filtered(WhiteNoise(seconds, seed + 1), Filter::BandPass(4200, 0.7));
    Sound grit = WhiteNoise(seconds, seed + 2);
    Random random(seed + 3);
    for (double& value : grit)
        value = random.Unit() < 0.004 ? value * 3 : 0.0;
    grit = Filtered(std::move(grit), Filter::BandPass(2600, 1.2));
    Add(whirr, spray, 0, 0.5);
    Add(whirr, grit, 0, 1.4);
    return Shaped(std::move(whirr), [&](double t) { return std::pow(Clamp01(spin(t)), 1.2); });
}

Sound Backfire(std::uint32_t seed)
{
    constexpr double seconds = 0.55;
    Random random(seed);
    const double deep = random.Between(58, 84);
    Sound bang = Shaped(WhiteNoise(seconds, seed), [](double t) { return std::exp(-t / 0.012) * 2.2; });
    Sound body = Filtered(WhiteNoise(seconds, seed + 1), Filter::BandPass(random.Between(300, 420), 0.8));
    Add(bang, Shaped(std::move(body), [](double t) { return std::exp(-t / 0.07) * 5; }));
    Sound thump = PureTone(seconds, [=](double t) { return deep + 110 * std::exp(-t / 0.025); });
    Add(bang, Shaped(std::move(thump), [](double t) { return std::exp(-t / 0.09) * 1.5; }));
    return InRoom(Faded(Driven(std::move(bang), 1.2), 0.0005, 0.2), 0.7, 0.25);
}

Sound DoorCreak(double seconds, std::uint32_t seed)
{
    const Sound drift = SlowNoise(seconds, 7, seed);
    // A hinge sticks and lets go, quicker in the middle of the way.
    Random random(seed + 1);
    Sound creak = Silence(seconds);
    double t = 0.02;
    while (t < seconds - 0.03) {
        const double pace = 38 + 75 * std::sin(pi * t / seconds) + 14 * drift[SamplesIn(t)];
        Add(creak, Struck(0.03, {480, 910, 1480, 2210}, 0.010), t, random.Between(0.5, 1.0));
        t += 1.0 / std::max(12.0, pace);
    }
    return Faded(Lasting(std::move(creak), seconds), 0.05, 0.08);
}

} // namespace torvik::sample
