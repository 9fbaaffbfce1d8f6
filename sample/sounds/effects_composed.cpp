#include "sample/sounds/effects.h"
#include "sample/sounds/engine.h"
#include "sample/sounds/filters.h"
#include "sample/sounds/motion.h"
#include "sample/sounds/road.h"

#include <cmath>

namespace torvik::sample {

Sound Backfiring()
{
    constexpr double bangs[] = {0.55, 1.12, 1.27, 1.95, 2.62, 2.74, 3.15};
    const Curve revs{{0, 1500},   {0.5, 2100}, {0.62, 1200}, {1.1, 1800}, {1.35, 900},
                     {1.9, 1500}, {2.1, 800},  {2.6, 1200},  {2.9, 520},  {3.2, 160}};
    const Curve throttle{{0, 0.5}, {2.4, 0.6}, {2.9, 0.2}, {3.1, 0}};
    EngineKind kind = burblingEight;
    kind.rough = 0.5;
    kind.lope = 0.8;
    Sound sound = Running(kind, {4.2, revs, throttle, 3}, 0.6);
    sound = Shaped(std::move(sound), [&](double t) { return revs(t) < 400 ? (revs(t) - 160) / 240 : 1.0; });
    std::uint32_t seed = 100;
    for (const double at : bangs) {
        seed += 7;
        Add(sound, Backfire(seed), at, 0.75 + 0.05 * (seed % 5));
    }
    return sound;
}

Sound OldColumnShift()
{
    constexpr double lasting = 6.2;
    const Curve revs{{0, 620},     {0.5, 620},  {0.8, 1300},  {2.0, 2700}, {2.3, 2000},
                     {2.45, 1500}, {3.9, 2900}, {4.25, 2000}, {4.4, 1650}, {6.2, 2500}};
    const Curve throttle{{0, 0.12},  {0.5, 0.12}, {0.7, 0.8},   {2.0, 0.8},   {2.06, 0.02}, {2.4, 0.02},
                         {2.5, 0.9}, {3.9, 0.9},  {3.96, 0.02}, {4.35, 0.02}, {4.5, 0.8}};
    EngineKind kind = straightSix;
    kind.lope = 0.2;
    Sound sound = Running(kind, {lasting, revs, throttle, 191}, 0.8);
    // The first gear is cut straight and sings; so, lower, does the second.
    const Course gear = [=](double t) { return revs(t) / 60 * (t < 2.2 ? 14.0 : t < 4.2 ? 9.0 : 5.5); };
    const Curve strain{{0, 0},     {0.5, 0},   {0.9, 1},   {2.0, 1},  {2.1, 0.1},
                       {2.5, 0.7}, {3.9, 0.7}, {4.0, 0.1}, {4.5, 0.3}};
    Add(sound, Shaped(RichTone(lasting, gear, 4, 1.3), [&](double t) { return 0.09 * strain(t); }));
    for (const double at : {2.18, 4.1})
        Add(sound, Struck(0.1, {310, 640, 1500}, 0.025), at, 0.35);
    const Curve speed{{0, 0}, {0.5, 0}, {2, 7}, {4, 14}, {6.2, 19}};
    Add(sound, Levelled(TyreRoll(lasting, speed, 0, 192), 0.16));
    return InRoom(Filtered(std::move(sound), Filter::LowPass(3800)), 0.25, 0.15);
}

Sound TurbineCar()
{
    constexpr double lasting = 6.3;
    const Curve spool{{0, 0.02}, {2.4, 0.75}, {2.7, 0.8}, {3.0, 1}, {6.3, 1.02}};
    Sound source = Silence(lasting);
    for (const double part : {1.0, 1.51, 2.63}) {
        Sound whine = PureTone(lasting, [=](double t) { return 90 + 1750 * part * spool(t); });
        Add(source, Shaped(std::move(whine), [&](double t) { return 0.5 * spool(t) / part; }));
    }
    Sound rush = Filtered(WhiteNoise(lasting, 140), Filter::BandPass(1900, 0.5));
    Add(source, Shaped(std::move(rush), [&](double t) { return 1.1 * spool(t) * spool(t); }));
    // The afterburner lights.
    Sound flame = Filtered(WhiteNoise(lasting, 141), Filter::LowPass(330));
    const Sound flicker = SlowNoise(lasting, 38, 142);
    for (std::size_t i = 0; i < flame.size(); ++i)
        flame[i] *= 1 + 0.5 * flicker[i];
    const Curve burn{{0, 0}, {2.75, 0}, {2.85, 1.0}, {3.6, 0.8}, {6.3, 0.8}};
    Add(source, Shaped(std::move(flame), [&](double t) { return 6 * burn(t); }));
    Add(source, Backfire(143), 2.75, 1.6);
    const Curve away{{0, 2}, {3.0, 2}, {3.8, 18}, {4.8, 70}, {6.3, 190}};
    return Passing(Lasting(std::move(source), lasting), {away, 8, 90});
}

} // namespace torvik::sample
