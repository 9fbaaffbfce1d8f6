#include "sample/sounds/horns.h"

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

} // namespace torvik::sample
