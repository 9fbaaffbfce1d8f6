#include "sample/sounds/effects.h"
#include "sample/sounds/engine.h"
#include "sample/sounds/filters.h"
#include "sample/sounds/road.h"

#include <utility>

namespace torvik::sample {

Sound SportsCar()
{
    constexpr double lasting = 5.8;
    const Curve revs{{0, 1100},    {0.25, 1100}, {0.45, 4600}, {0.8, 1500}, {1.05, 1300},
                     {1.25, 5600}, {1.7, 1800},  {1.9, 4200},  {3.0, 7000}, {3.12, 4700},
                     {4.2, 7100},  {4.32, 5200}, {5.8, 7000}};
    const Curve throttle{{0, 0.1},  {0.25, 0.1}, {0.35, 0.9}, {0.48, 0}, {1.05, 0.1},
                         {1.15, 1}, {1.3, 0},    {1.75, 0.2}, {1.9, 1},  {3.0, 1},
                         {3.05, 0}, {3.15, 1},   {4.2, 1},    {4.25, 0}, {4.35, 1}};
    const EngineKind kind = Tuned(straightFour, {.muffler = 2800, .crackle = 0.6});
    Sound source = RunEngine(kind, {lasting, revs, throttle, 7});
    const double level = Loudest(source);
    Add(source, TyreSqueal(0.8, Curve{{0, 0}, {0.1, 0.9}, {0.5, 0.6}, {0.8, 0}}, 71), 1.85, 0.25 * level);
    const Curve away{{0, 3}, {1.8, 3}, {3, 16}, {4.2, 46}, {5.8, 100}};
    return Passing(source, {away, 6, 90});
}

Sound DragStart()
{
    constexpr double lasting = 5.8;
    const Curve revs{{0, 1000},   {0.8, 1000}, {1.0, 4300}, {1.25, 3600}, {1.4, 4400}, {1.55, 6800},
                     {2.5, 6900}, {2.6, 5000}, {3.6, 7000}, {3.7, 5300},  {5.8, 7100}};
    const Curve throttle{{0, 0.12}, {0.75, 0.12}, {0.9, 1},    {2.5, 1}, {2.54, 0.1},
                         {2.62, 1}, {3.6, 1},     {3.64, 0.1}, {3.72, 1}};
    const EngineKind kind =
        Tuned(burblingEight, {.pipes = {{0.8, 0.9}}, .muffler = 3000, .lope = 0.8, .crackle = 0.6});
    Sound source = Running(kind, {lasting, revs, throttle, 8});
    Add(source, TyreSqueal(1.7, Curve{{0, 0}, {0.12, 1}, {1.1, 0.9}, {1.7, 0}}, 81), 1.42, 0.5);
    Add(source, TyreSqueal(0.45, Curve{{0, 0}, {0.05, 1}, {0.3, 0.6}, {0.45, 0}}, 82), 2.6, 0.4);
    Add(source, TyreSqueal(0.3, Curve{{0, 0}, {0.05, 0.9}, {0.3, 0}}, 83), 3.7, 0.3);
    const Curve away{{0, 2}, {1.42, 2}, {2.6, 16}, {3.7, 52}, {5.8, 150}};
    Sound sound = Passing(Lasting(std::move(source), lasting), {away, 9, 140});
    Add(sound, Levelled(Crowd(lasting, 84), 0.02));
    return sound;
}

TwoEars AtTheTrack()
{
    constexpr double lasting = 7.8;
    TwoEars track = Placed(Levelled(Crowd(lasting, 901), 0.05), -0.3);
    Add(track, Placed(Levelled(Crowd(lasting, 955), 0.05), 0.4));
    const auto car = [&](const EngineKind& kind, double revs, double speed, double passing,
                         std::uint32_t seed) {
        const Curve course{{0, revs}, {lasting, revs * 1.04}};
        Sound source = Running(kind, {lasting, course, Always(1.0), seed});
        Add(source, Rolling(lasting, 50.0, 0, seed + 50, 0.25));
        const Drive drive{[=](double t) { return speed * (t - passing); }, 12, 160};
        Add(track, PassingBothEars(source, drive), 0, 0.9);
    };
    const EngineKind stock = Tuned(burblingEight, {.pipes = {{0.7, 0.8}}, .muffler = 3600});
    car(stock, 7300, 62, 1.5, 911);
    car(screamingEight, 8600, 70, 2.4, 912);
    car(stock, 7600, 64, 4.1, 913);
    car(stock, 7150, 63, 4.7, 914);
    car(screamingEight, 9000, 72, 6.2, 915);
    return track;
}

TwoEars StockCarsPass()
{
    constexpr double lasting = 4.8;
    TwoEars road = Placed(Silence(lasting), 0);
    const EngineKind kind = Tuned(burblingEight, {.pipes = {{0.55, 0.66}}, .ring = 0.7, .muffler = 4200});
    const auto car = [&](double revs, double passing, double aside, std::uint32_t seed) {
        const Curve course{{0, revs}, {lasting, revs * 1.03}};
        Sound source = Running(kind, {lasting, course, Always(1.0), seed});
        Add(source, Rolling(lasting, 70.0, 0, seed + 1, 0.4));
        const Drive drive{[=](double t) { return -78 * (t - passing); }, aside, 200};
        Add(road, PassingBothEars(source, drive));
    };
    car(8100, 1.7, 8, 121);
    car(8350, 2.05, 10, 124);
    car(7900, 2.9, 9, 127);
    return road;
}

Sound RacingLap()
{
    constexpr double lasting = 5.2;
    const Curve revs{{0, 6200},    {0.7, 9200},  {0.76, 7000}, {1.6, 9300},  {1.66, 7300},
                     {2.7, 9400},  {2.76, 9000}, {2.95, 7600}, {3.02, 9000}, {3.25, 7200},
                     {3.32, 8700}, {3.7, 5600},  {4.1, 5800},  {5.2, 9200}};
    const Curve throttle{{0, 1},    {0.7, 1},   {0.72, 0}, {0.77, 1}, {1.6, 1},   {1.62, 0},
                         {1.67, 1}, {2.7, 1},   {2.74, 0}, {2.95, 0}, {3.0, 0.9}, {3.04, 0},
                         {3.25, 0}, {3.3, 0.9}, {3.35, 0}, {3.8, 0},  {4.1, 0.4}, {4.4, 1}};
    Sound sound = Running(screamingEight, {lasting, revs, throttle, 12}, 0.9);
    Add(sound, TyreSqueal(0.7, Curve{{0, 0}, {0.2, 0.8}, {0.5, 0.7}, {0.7, 0}}, 13), 3.5, 0.15);
    // Wind round the helmet.
    Add(sound, Levelled(Filtered(WhiteNoise(lasting, 14), Filter::BandPass(420, 0.4)), 0.10));
    return Driven(std::move(sound), 1.4);
}

TwoEars SpeedwayPass()
{
    constexpr double lasting = 4.3;
    const Curve revs{{0, 11100}, {lasting, 11400}};
    Sound source = Running(turbocharged, {lasting, revs, Always(1.0), 33});
    Add(source, Rolling(lasting, 80.0, 0, 34, 0.22));
    TwoEars road = PassingBothEars(source, {[](double t) { return 96 * (t - 1.9); }, 9, 220});
    Add(road, Placed(Levelled(Crowd(lasting, 35), 0.015), 0));
    return road;
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

Sound OpenRoadster()
{
    constexpr double lasting = 4.8;
    const Curve revs{{0, 4300}, {1.75, 6300}, {1.87, 4500}, {4.8, 6600}};
    const Curve throttle{{0, 1}, {1.75, 1}, {1.8, 0}, {1.9, 1}};
    const EngineKind kind =
        Tuned(burblingEight, {.pipes = {{0.95, 1.2}}, .ring = 0.72, .muffler = 2400, .crackle = 1});
    Sound source = Running(kind, {lasting, revs, throttle, 25});
    Add(source, Rolling(lasting, 38.0, 0.1, 26, 0.2));
    const Curve along{{0, -58}, {1.6, -4}, {1.9, 7}, {4.8, 130}};
    return Passing(source, {along, 3.5, 110});
}

Sound RevAndRun()
{
    constexpr double lasting = 6.3;
    const Curve revs{{0, 850},    {0.4, 850},  {0.65, 4200}, {1.15, 1100}, {1.35, 950},
                     {1.6, 5200}, {2.2, 1300}, {2.4, 1200},  {2.55, 4200}, {3.5, 5600},
                     {3.6, 3700}, {4.7, 5600}, {4.8, 4000},  {6.3, 5400}};
    const Curve throttle{{0, 0.1},  {0.4, 0.1}, {0.5, 0.9}, {0.68, 0}, {1.35, 0.1},
                         {1.45, 1}, {1.65, 0},  {2.4, 0.2}, {2.5, 1},  {3.5, 1},
                         {3.54, 0}, {3.62, 1},  {4.7, 1},   {4.74, 0}, {4.82, 1}};
    const EngineKind kind = Tuned(burblingEight, {.pipes = {{1.5, 1.75}}, .muffler = 1600, .crackle = 0.5});
    Sound source = Running(kind, {lasting, revs, throttle, 27});
    Add(source, TyreSqueal(1.15, Curve{{0, 0}, {0.1, 1}, {0.8, 0.8}, {1.15, 0}}, 271), 2.48, 0.38);
    Add(source, TyreSqueal(0.28, Curve{{0, 0}, {0.04, 0.9}, {0.28, 0}}, 272), 3.6, 0.35);
    const Curve away{{0, 2}, {2.5, 2}, {3.6, 14}, {4.8, 46}, {6.3, 105}};
    return Passing(Lasting(std::move(source), lasting), {away, 6, 110});
}

} // namespace torvik::sample
