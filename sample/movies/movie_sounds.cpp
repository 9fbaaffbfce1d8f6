#include "sample/geometry/vec.h"
#include "sample/movies/movie_plan.h"
#include "sample/sounds/engine.h"
#include "sample/sounds/filters.h"
#include "sample/sounds/motion.h"
#include "sample/sounds/road.h"

#include <array>

namespace torvik::sample {

namespace {

/// The pitch of a note, counted in half tones from the A of 110 hertz.
double Note(int halfTones)
{
    return 110 * std::pow(2.0, halfTones / 12.0);
}

/// A plucked string: bright at first, then dull.
Sound Pluck(int note, double seconds, double drive)
{
    const double pitch = Note(note);
    Sound string = RichTone(
        seconds, [=](double) { return pitch; }, 14, 0.9);
    string = Shaped(std::move(string), [=](double t) { return std::exp(-t * 3 / seconds); });
    return Faded(Filtered(Driven(std::move(string), drive), Filter::LowPass(3200)), 0.004, 0.04);
}

/// A chord held softly, as by strings.
Sound Pad(const std::vector<int>& notes, double seconds)
{
    Sound pad = Silence(seconds);
    for (const int note : notes) {
        const double pitch = Note(note);
        Add(pad,
            RichTone(
                seconds, [=](double t) { return pitch * (1 + 0.003 * std::sin(2 * pi * 5.2 * t)); }, 8, 1.5));
    }
    return Faded(Filtered(std::move(pad), Filter::LowPass(1600)), seconds * 0.25, seconds * 0.3);
}

Sound Kick()
{
    Sound kick = PureTone(0.25, [](double t) { return 48 + 120 * std::exp(-t / 0.03); });
    return Faded(Shaped(std::move(kick), [](double t) { return std::exp(-t / 0.1); }), 0.001, 0.05);
}

Sound Snare(std::uint32_t seed)
{
    Sound snare = Filtered(WhiteNoise(0.2, seed), Filter::BandPass(2400, 0.5));
    Add(snare, Struck(0.2, {190, 330}, 0.05), 0, 0.5);
    return Faded(Shaped(std::move(snare), [](double t) { return std::exp(-t / 0.06); }), 0.001, 0.05);
}

/// The engine under the pictures; silent below the cards.
Sound EngineBetweenCards(const EngineKind& kind, double seconds, const Course& revs, std::uint32_t seed)
{
    Sound engine = RunEngine(kind, {seconds, revs, Always(0.7), seed});
    return Shaped(Levelled(std::move(engine), 1), [=](double t) {
        return SmoothStep(titleSeconds - 0.4, titleSeconds + 0.2, t) *
               (1 - SmoothStep(seconds - endSeconds - 0.2, seconds - endSeconds + 0.6, t));
    });
}

} // namespace

Sound VolcanoSound(double seconds)
{
    Sound track = Silence(seconds);
    Add(track, Pad({-12, 0, 4, 7}, 2.6), 0, 0.30);
    Add(track, Pad({-7, 5, 9, 12}, 2.6), seconds - 2.2, 0.30);
    // The car comes by, and then the camera rides along.
    const Curve revs{{0, 2600}, {5, 2900}, {5.1, 3600}, {8.4, 4300}, {8.5, 3200}, {seconds, 4200}};
    Add(track, EngineBetweenCards(burblingEight, seconds, revs, 671), 0, 0.8);
    Sound surf = Filtered(WhiteNoise(seconds, 672), Filter::BandPass(900, 0.4));
    Add(track, Shaped(std::move(surf), [](double t) { return 0.06 + 0.05 * std::sin(2 * pi * t / 3.7); }));
    return track;
}

Sound OpenRoadSound(double seconds)
{
    // A guitar walks up and down under the engine.
    constexpr std::array walk = {-5, 2, 7, 11, 14, 11, 7, 2};
    Sound track = Silence(seconds);
    std::size_t step = 0;
    for (double at = 0.1; at < seconds - 1.0; at += 0.25) {
        const int shift = (step / 16) % 2 == 0 ? 0 : 5;
        Add(track, Pluck(walk[step % walk.size()] + shift, 0.7, 0.8), at, 0.34);
        ++step;
    }
    Add(track, Pluck(-5, 1.2, 0.8), seconds - 1.2, 0.4);
    const Curve revs{{0, 1900}, {4, 2300}, {seconds, 3300}};
    Add(track, EngineBetweenCards(burblingEight, seconds, revs, 691), 0, 0.45);
    return Lasting(InRoom(track, 0.8, 0.15), seconds);
}

Sound GliderSound(double seconds)
{
    // Bells in waltz time, and a wheel that finds no hold.
    constexpr std::array waltz = {12, 19, 24, 17, 24, 29, 19, 26, 31, 12, 19, 28};
    Sound track = Silence(seconds);
    std::size_t step = 0;
    for (double at = 0.1; at < seconds - 1.2; at += 0.3) {
        const double pitch = Note(waltz[step++ % waltz.size()]) * 2;
        Add(track, Struck(1.1, {pitch, pitch * 2.76, pitch * 5.4}, 0.35), at, 0.22);
    }
    const Curve spin{{0, 0},   {1.7, 0}, {2.4, 0.45}, {4.6, 0.3}, {5.4, 0.95},
                     {8, 0.8}, {9, 0.3}, {11.6, 0.3}, {12, 0}};
    Add(track, Levelled(WheelOnIce(seconds, spin, 711), 0.4));
    const Course revs = [=](double t) { return 1500 + 2200 * spin(t); };
    Add(track, EngineBetweenCards(straightSix, seconds, revs, 712), 0, 0.35);
    return Lasting(InRoom(track, 1.3, 0.25), seconds);
}

Sound ShadowsSound(double seconds)
{
    // A slow bass, a cymbal far away: something is coming.
    constexpr std::array bass = {-12, -12, -9, -5, -12, -12, -7, -6};
    Sound track = Silence(seconds);
    std::size_t step = 0;
    for (double at = 0.1; at < seconds - 0.8; at += 0.5) {
        Add(track, Pluck(bass[step % bass.size()], 0.6, 1.0), at, 0.55);
        Sound brush =
            Filtered(WhiteNoise(0.16, 440 + static_cast<std::uint32_t>(step)), Filter::HighPass(5000));
        brush = Shaped(std::move(brush), [](double t) { return std::exp(-t / 0.04); });
        Add(track, Faded(std::move(brush), 0.002, 0.03), at + 0.25, 0.13);
        ++step;
    }
    Add(track, Pad({0, 3, 7, 10}, 5), 0.5, 0.08);
    Add(track, Pad({-2, 2, 5, 12}, 5), seconds - 5.4, 0.08);
    const Curve revs{{0, 1500}, {5.5, 1900}, {8.7, 2400}, {9, 3000}, {seconds, 3600}};
    Add(track, EngineBetweenCards(burblingEight, seconds, revs, 441), 0, 0.5);
    return Lasting(InRoom(track, 1.0, 0.2), seconds);
}

Sound RockSound(double seconds)
{
    constexpr double beatSeconds = 0.4375;
    // Twelve bars would be too long: four of them, two beats to the chord.
    constexpr std::array roots = {-5, -5, 0, 0, 2, 0, -5, 2};
    Sound track = Silence(seconds);
    std::size_t beat = 0;
    for (double at = 0.0; at < seconds - 1.4; at += beatSeconds) {
        const int root = roots[(beat / 2) % roots.size()];
        for (int half = 0; half < 2; ++half) {
            const int top = half == 0 ? 7 : 9;
            const double when = at + half * beatSeconds * 0.58; // swung
            Add(track, Pluck(root, 0.24, 3.0), when, 0.22);
            Add(track, Pluck(root + top, 0.24, 3.0), when, 0.18);
            Sound hat =
                Filtered(WhiteNoise(0.06, 900 + static_cast<std::uint32_t>(half)), Filter::HighPass(6000));
            Add(track, Shaped(std::move(hat), [](double t) { return std::exp(-t / 0.015); }), when, 0.14);
        }
        if (beat % 2 == 0)
            Add(track, Kick(), at, 0.75);
        else
            Add(track, Snare(static_cast<std::uint32_t>(beat)), at, 0.55);
        ++beat;
    }
    Add(track, Pluck(-5, 1.3, 3.0), seconds - 1.35, 0.4);
    Add(track, Pluck(2, 1.3, 3.0), seconds - 1.35, 0.35);
    Add(track, TyreSqueal(1.5, Curve{{0, 0}, {0.1, 1}, {1.0, 0.8}, {1.5, 0}}, 77), titleSeconds + 3.5, 0.18);
    const Curve revs{{0, 1200}, {4.8, 1200}, {5.25, 4500}, {7.8, 6300}, {7.9, 4600}, {seconds, 6000}};
    Add(track, EngineBetweenCards(burblingEight, seconds, revs, 701), 0, 0.4);
    return Lasting(std::move(track), seconds);
}

} // namespace torvik::sample
