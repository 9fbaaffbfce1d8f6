#include "sample/sounds/effects.h"
#include "sample/sounds/engine.h"
#include "sample/sounds/filters.h"
#include "sample/sounds/road.h"

#include <utility>

namespace torvik::sample {

namespace {

/// A starter motor for `cranking` seconds, then the engine, whose `driving` counts from the first bang.
Sound StartUp(const EngineKind& kind, double cranking, double turns, const Driving& driving, double starter)
{
    Sound sound = Silence(cranking);
    Add(sound, CrankEngine(cranking + 0.12, turns, driving.seed + 500), 0, starter);
    Sound engine = Running(kind, driving);
    Add(sound, Faded(std::move(engine), 0.05, 0.01), cranking);
    return sound;
}

} // namespace

Sound GentleSix()
{
    const Curve revs{{0, 350},    {0.25, 1500}, {0.8, 900}, {1.6, 680}, {2.2, 680},
                     {2.6, 1900}, {3.2, 800},   {3.6, 700}, {4.2, 700}};
    const Curve throttle{{0, 0.6},    {0.3, 0.3},  {0.8, 0.12}, {2.2, 0.12},
                         {2.35, 0.5}, {2.7, 0.05}, {3.2, 0.12}};
    return InRoom(StartUp(straightSix, 0.85, 3.4, {4.4, revs, throttle, 162}, 0.35), 0.4, 0.1);
}

Sound SportyEight()
{
    const Curve revs{{0, 400},     {0.22, 2300}, {0.9, 1000}, {1.5, 780},  {1.7, 780},  {1.95, 3500},
                     {2.55, 1000}, {2.8, 800},   {3.0, 800},  {3.3, 4700}, {4.1, 1100}, {4.8, 760}};
    const Curve throttle{{0, 0.8},   {0.3, 0.2}, {0.9, 0.1}, {1.7, 0.1}, {1.8, 0.9}, {2.0, 0.02},
                         {2.6, 0.1}, {3.0, 0.1}, {3.1, 1.0}, {3.35, 0},  {4.2, 0.1}};
    const EngineKind kind = Tuned(burblingEight, {.crackle = 0.25});
    return InRoom(StartUp(kind, 0.6, 3.8, {5.1, revs, throttle, 163}, 0.35), 0.5, 0.12);
}

Sound ThreeStarts()
{
    Sound sound = Silence(7.6);
    const auto run = [](double flare, double idle) {
        return Curve{{0, 380}, {0.2, flare}, {0.7, idle * 1.2}, {1.3, idle}};
    };
    const Curve throttle{{0, 0.7}, {0.25, 0.2}, {0.7, 0.12}};
    Add(sound,
        Faded(StartUp(straightFour, 0.65, 4.6, {1.35, run(2600, 950), throttle, 171}, 0.45), 0.01, 0.35),
        0.05, 0.8);
    // The second one needs two tries.
    Add(sound, CrankEngine(0.85, 3.1, 172), 2.05, 0.42);
    Add(sound,
        Faded(StartUp(burblingEight, 0.8, 3.0, {1.35, run(2000, 740), throttle, 173}, 0.45), 0.01, 0.35),
        3.15, 1.0);
    Add(sound, Faded(StartUp(diesel, 1.0, 2.2, {1.6, run(1150, 620), throttle, 174}, 0.5), 0.01, 0.5), 5.2,
        0.95);
    return InRoom(sound, 0.7, 0.14);
}

Sound OldColumnShift()
{
    constexpr double lasting = 6.2;
    const Curve revs{{0, 620},     {0.5, 620},  {0.8, 1300},  {2.0, 2700}, {2.3, 2000},
                     {2.45, 1500}, {3.9, 2900}, {4.25, 2000}, {4.4, 1650}, {6.2, 2500}};
    const Curve throttle{{0, 0.12},  {0.5, 0.12}, {0.7, 0.8},   {2.0, 0.8},   {2.06, 0.02}, {2.4, 0.02},
                         {2.5, 0.9}, {3.9, 0.9},  {3.96, 0.02}, {4.35, 0.02}, {4.5, 0.8}};
    const EngineKind kind = Tuned(straightSix, {.lope = 0.2});
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

Sound BigEightStart()
{
    const Curve revs{{0, 300},    {0.2, 2700}, {0.75, 1500}, {1.3, 900}, {2.1, 850},
                     {2.4, 4100}, {3.1, 1200}, {3.5, 880},   {4, 850}};
    const Curve throttle{{0, 1}, {0.3, 0.3}, {0.8, 0.15}, {2.1, 0.15}, {2.2, 1}, {2.45, 0}, {3.2, 0.15}};
    const EngineKind kind =
        Tuned(burblingEight, {.pulse = 0.0024, .pipes = {{2.3, 2.7}}, .muffler = 1250, .lope = 0.75});
    // So much compression that the starter all but stands still each time.
    return InRoom(StartUp(kind, 1.15, 2.3, {4.1, revs, throttle, 207}, 0.45), 0.5, 0.12);
}

Sound BlownHotRod()
{
    constexpr double lasting = 6.2;
    const Curve revs{{0, 950},    {0.9, 950},  {1.15, 5200}, {1.8, 1300}, {2.3, 960}, {2.55, 4400},
                     {2.8, 2500}, {3.0, 6200}, {3.9, 1400},  {4.4, 980},  {6.2, 940}};
    const Curve throttle{{0, 0.15}, {0.9, 0.15}, {1.0, 1}, {1.2, 0}, {2.0, 0.15}, {2.3, 0.15},
                         {2.4, 1},  {2.6, 0},    {2.8, 0}, {2.9, 1}, {3.1, 0},    {4.2, 0.15}};
    const EngineKind kind = Tuned(burblingEight, {.pulse = 0.0021,
                                                  .pipes = {{0.7, 0.8}},
                                                  .muffler = 3000,
                                                  .lope = 1,
                                                  .whine = 0.22,
                                                  .whineRatio = 9.5,
                                                  .crackle = 1});
    Sound sound = Running(kind, {lasting, revs, throttle, 222}, 0.95);
    Add(sound, Backfire(223), 1.5, 0.35);
    Add(sound, Backfire(224), 3.42, 0.5);
    return InRoom(sound, 0.5, 0.1);
}

Sound AirCooledStart()
{
    const Curve revs{{0, 500},    {0.2, 2300}, {0.8, 1200}, {1.5, 900},  {1.7, 900}, {1.95, 4600},
                     {2.6, 1300}, {2.9, 1600}, {4.0, 6200}, {4.1, 4100}, {5.5, 6600}};
    const Curve throttle{{0, 0.8},   {0.3, 0.2}, {0.8, 0.12}, {1.7, 0.12}, {1.8, 1}, {2.0, 0},
                         {2.7, 0.2}, {2.9, 1},   {4.0, 1},    {4.03, 0},   {4.12, 1}};
    Sound source = StartUp(airCooledSix, 0.7, 4.4, {5.6, revs, throttle, 244}, 0.3);
    const Curve away{{0, 2}, {3.6, 2}, {4.8, 22}, {6.3, 72}};
    return Passing(source, {away, 6, 100});
}

} // namespace torvik::sample
