#include "sample/sounds/effects.h"
#include "sample/sounds/engine.h"
#include "sample/sounds/filters.h"
#include "sample/sounds/road.h"

#include <cmath>
#include <utility>

namespace torvik::sample {

namespace {

/// A drive past the listener at a steady speed in metres a second, nearest at second `passing`.
Drive Steady(double speed, double passing, double aside)
{
    return {[=](double t) { return speed * (t - passing); }, aside};
}

} // namespace

Sound Backfiring()
{
    constexpr double bangs[] = {0.55, 1.12, 1.27, 1.95, 2.62, 2.74, 3.15};
    const Curve revs{{0, 1500},   {0.5, 2100}, {0.62, 1200}, {1.1, 1800}, {1.35, 900},
                     {1.9, 1500}, {2.1, 800},  {2.6, 1200},  {2.9, 520},  {3.2, 160}};
    const Curve throttle{{0, 0.5}, {2.4, 0.6}, {2.9, 0.2}, {3.1, 0}};
    const EngineKind kind = Tuned(burblingEight, {.rough = 0.5, .lope = 0.8});
    Sound sound = Running(kind, {4.2, revs, throttle, 3}, 0.6);
    sound = Shaped(std::move(sound), [&](double t) { return revs(t) < 400 ? (revs(t) - 160) / 240 : 1.0; });
    std::uint32_t seed = 100;
    for (const double at : bangs) {
        seed += 7;
        Add(sound, Backfire(seed), at, 0.75 + 0.05 * (seed % 5));
    }
    return sound;
}

Sound CarDoor()
{
    Sound sound = Silence(2.8);
    // Keys first.
    for (int i = 0; i < 6; ++i)
        Add(sound, Struck(0.12, {3900.0 + 310 * ((i * 3) % 5), 6100, 7600}, 0.03), 0.04 + 0.07 * i, 0.10);
    Add(sound, DoorLatch(), 0.55, 0.55);
    Add(sound, DoorCreak(0.62, 21), 0.68, 0.14);
    Add(sound, DoorSlam(0.7, 22), 1.62, 0.8);
    return InRoom(sound, 0.5, 0.16);
}

Sound CarHorns()
{
    Sound sound = Silence(4.6);
    Add(sound, CarHorn(0.22, {405, 508}, 0.6), 0.05, 1.0);
    Add(sound, CarHorn(0.38, {405, 508}, 0.6), 0.40, 1.0);
    Add(sound, CarHorn(0.95, {311, 392, 466}, 0.15), 1.05, 1.0);
    Add(sound, CarHorn(0.30, {350, 440}, 1.0), 2.2, 0.9);
    // The klaxon of a very old car: its wheel runs up and down again.
    const Curve klaxon{{0, 190}, {0.28, 390}, {0.42, 520}, {0.95, 480}, {1.35, 150}};
    Sound old = RichTone(1.4, klaxon, 30, 0.55);
    old = Filtered(Driven(std::move(old), 2.0), Filter::BandPass(1250, 0.8));
    Add(sound, Faded(std::move(old), 0.05, 0.3), 2.95, 0.75);
    return InRoom(sound, 0.6, 0.15);
}

TwoEars Traffic()
{
    TwoEars street = Placed(Levelled(CityHum(7, 31), 0.16), 0);
    Add(street, Placed(Levelled(CityHum(7, 77), 0.10), 0.6));
    const auto car = [&](double speed, double passing, double aside, std::uint32_t seed) {
        Sound source = TyreRoll(7, Always(16.0), 0.1, seed);
        const Curve revs{{0, 1500}, {7, 1750}};
        Add(source, Running(straightSix, {7, revs, Always(0.35), seed}, 0.5));
        Add(street, PassingBothEars(source, Steady(speed, passing, aside)), 0, 0.35);
    };
    car(14, 1.4, 5, 301);
    car(-12, 3.3, 8, 302);
    car(15, 5.4, 5, 303);
    const auto horn = [&](double at, double seconds, std::vector<double> tones, double place, double far) {
        Sound sound = CarHorn(seconds, tones, 0.45);
        sound = InRoom(Filtered(std::move(sound), Filter::LowPass(5200 - 4200 * far)), 1.1, 0.2 + 0.4 * far);
        Add(street, Placed(sound, place), at, 0.75 - 0.5 * far);
    };
    horn(0.5, 0.35, {392, 494}, -0.7, 0.35);
    horn(1.05, 0.9, {330, 415}, 0.5, 0.1);
    horn(2.35, 0.22, {440, 554}, 0.1, 0.7);
    horn(2.65, 0.22, {440, 554}, 0.1, 0.7);
    horn(3.4, 1.3, {311, 370}, -0.4, 0.25);
    horn(4.0, 0.5, {466, 587}, 0.8, 0.5);
    horn(5.1, 0.28, {370, 466}, -0.1, 0.0);
    horn(5.5, 0.55, {370, 466}, -0.1, 0.0);
    return street;
}

TwoEars PoliceCar()
{
    Sound source = Siren(6.8, 0.62);
    const Curve revs{{0, 3600}, {2, 4600}, {2.1, 3500}, {6.8, 4700}};
    Add(source, Running(burblingEight, {6.8, revs, Always(0.9), 5}, 0.5));
    Add(source, Rolling(6.8, 30.0, 0, 51, 0.25));
    TwoEars street = PassingBothEars(source, Steady(31, 3.3, 7));
    Add(street, Placed(Levelled(CityHum(6.8, 52), 0.012), 0));
    return street;
}

Sound TaxiHorns()
{
    Sound sound = Levelled(CityHum(3.6, 61), 0.05);
    Add(sound, CarHorn(0.13, {466, 587}, 0.9), 0.10, 0.9);
    Add(sound, CarHorn(0.13, {466, 587}, 0.9), 0.30, 0.9);
    Add(sound, CarHorn(0.50, {349, 440}, 0.8), 0.72, 0.8);
    Add(sound, CarHorn(0.10, {523, 659}, 1.0), 1.35, 0.6);
    Add(sound, CarHorn(0.10, {523, 659}, 1.0), 1.50, 0.6);
    Add(sound, CarHorn(0.10, {523, 659}, 1.0), 1.65, 0.6);
    Add(sound, CarHorn(0.85, {370, 494}, 0.85), 1.95, 0.95);
    Add(sound, CarHorn(0.15, {466, 587}, 0.9), 3.0, 0.85);
    return InRoom(sound, 0.9, 0.2);
}

TwoEars EighteenWheeler()
{
    constexpr double lasting = 7.4;
    const Curve revs{{0, 1350}, {1.6, 1620}, {1.75, 1180}, {7.4, 1700}};
    Sound source = Running(diesel, {lasting, revs, Always(0.85), 18});
    Sound tyres = TyreRoll(lasting, Always(24.0), 0.05, 181);
    // Each axle slaps over the joints of the road.
    for (int i = 0; i < 18; ++i)
        Add(tyres, Shaped(WhiteNoise(0.06, 400), [](double t) { return std::exp(-t / 0.012); }), 0.4 * i,
            0.6);
    Add(source, Levelled(Filtered(std::move(tyres), Filter::LowPass(2600)), 0.75));
    Add(source, TruckHorn(1.25), 1.3, 1.1);
    Add(source, TruckHorn(0.4), 2.75, 1.0);
    TwoEars road = PassingBothEars(Lasting(std::move(source), lasting), Steady(20, 3.9, 7));
    Add(road, PassingBothEars(Levelled(AirBrake(1.2, 19), 0.4), Steady(20, -0.3, 7)), 5.2, 1.0);
    return road;
}

Sound RedLight()
{
    constexpr double lasting = 7.2;
    const Curve near{{0, 720},   {1.4, 720}, {1.6, 2300},  {2.0, 760},  {2.9, 720},  {3.05, 2900},
                     {3.4, 900}, {4.6, 740}, {4.75, 3600}, {5.5, 4700}, {5.6, 3100}, {7.2, 5000}};
    const Curve nearThrottle{{0, 0.08},    {1.38, 0.08}, {1.5, 0.8}, {1.62, 0.05}, {2.9, 0.08}, {3.0, 0.9},
                             {3.12, 0.05}, {4.6, 0.08},  {4.7, 1.0}, {5.52, 1.0},  {5.6, 0.2},  {5.7, 1}};
    const Curve far{{0, 900},   {2.2, 900},  {2.35, 3400}, {2.7, 1000}, {3.6, 900},  {3.75, 4200},
                    {4.2, 950}, {4.65, 950}, {4.85, 4600}, {5.7, 6800}, {5.8, 4700}, {7.2, 7000}};
    const Curve farThrottle{{0, 0.1},   {2.2, 0.1}, {2.3, 0.8},  {2.4, 0.05}, {3.6, 0.1},
                            {3.7, 0.9}, {3.8, 0.0}, {4.65, 0.1}, {4.8, 1.0}};
    Sound sound = Running(burblingEight, {lasting, near, nearThrottle, 41}, 0.9);
    const Sound other = Running(straightFour, {lasting, far, farThrottle, 42}, 0.45);
    Add(sound, other);
    const Curve away{{0, 6}, {4.7, 6}, {5.6, 16}, {7.2, 52}};
    sound = Passing(sound, {away, 6, 80});
    for (int i = 0; i < 9; ++i)
        Add(sound, IndicatorTick(i % 2 == 1), 0.2 + 0.42 * i, 0.07);
    Add(sound, Shaped(TyreSqueal(0.7, Curve{{0, 0}, {0.1, 0.8}, {0.5, 0.7}, {0.7, 0}}, 43), Always(0.16)),
        4.72);
    Add(sound, Levelled(CityHum(lasting, 44), 0.02));
    return sound;
}

Sound StuckOnIce()
{
    constexpr double lasting = 6.8;
    // Rocking to and fro: each try spins up and lets go; the last one nearly does it.
    const Curve spin{{0, 0},      {0.35, 0.0}, {0.6, 0.7}, {1.25, 0.8}, {1.5, 0.1}, {1.7, 0.1},
                     {1.95, 0.8}, {2.45, 0.8}, {2.7, 0.1}, {2.9, 0.1},  {3.1, 0.9}, {3.6, 0.9},
                     {3.8, 0.15}, {4.0, 0.2},  {4.4, 1.0}, {5.6, 1.0},  {5.9, 0.2}, {6.4, 0}};
    const Course revs = [=](double t) { return 750 + 3600 * spin(t); };
    const Course throttle = [=](double t) { return 0.1 + 0.7 * spin(t); };
    Sound sound = Running(straightSix, {lasting, revs, throttle, 62}, 0.65);
    Add(sound, Levelled(WheelOnIce(lasting, spin, 63), 0.75));
    // It falls back into its hole.
    for (const double at : {1.55, 2.78, 3.88, 6.0})
        Add(sound,
            Shaped(PureTone(0.25, [](double t) { return 46 + 30 * std::exp(-t / 0.03); }),
                   [](double t) { return std::exp(-t / 0.07); }),
            at, 0.5);
    return sound;
}

Sound PassingEight()
{
    const Curve revs{{0, 4150}, {3.4, 4500}};
    Sound source = Running(burblingEight, {3.5, revs, Always(0.85), 67});
    Add(source, Rolling(3.5, 34.0, 0.1, 68, 0.32));
    return Faded(Lasting(Passing(source, Steady(34, 1.5, 4.5)), 3.2), 0.12, 0.35);
}

TwoEars GoingByInTheWet()
{
    const Curve revs{{0, 2050}, {4.8, 1950}};
    Sound source = Rolling(4.8, 18.0, 1.0, 91, 0.9);
    Add(source, Running(straightSix, {4.8, revs, Always(0.4), 92}, 0.55));
    TwoEars road = PassingBothEars(source, Steady(-17, 2.2, 4));
    Sound rain = Filtered(WhiteNoise(4.8, 93), Filter::HighPass(3500));
    Add(road, Placed(Levelled(std::move(rain), 0.012), 0));
    return {Faded(Lasting(road.left, 4.5), 0.2, 0.5), Faded(Lasting(road.right, 4.5), 0.2, 0.5)};
}

} // namespace torvik::sample
