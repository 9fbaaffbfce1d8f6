#include "sample/sounds/effects.h"
#include "sample/sounds/engine.h"
#include "sample/sounds/road.h"

#include <utility>

namespace torvik::sample {

Sound TwinMotorcycle()
{
    constexpr double lasting = 6.3;
    const Curve revs{{0, 820},    {1.7, 820},  {1.85, 2600}, {2.3, 900},  {2.7, 840}, {2.85, 3100},
                     {3.4, 1000}, {3.7, 1300}, {4.7, 3600},  {4.8, 2300}, {6.3, 3900}};
    const Curve throttle{{0, 0.14},    {1.7, 0.14}, {1.8, 0.9}, {1.95, 0.05}, {2.7, 0.14},  {2.8, 1},
                         {2.95, 0.05}, {3.6, 0.2},  {3.8, 0.9}, {4.7, 0.9},   {4.74, 0.05}, {4.82, 0.9}};
    Sound running = Running(bigTwin, {lasting - 0.75, revs, throttle, 14});
    Sound source = Silence(lasting);
    // Two kicks, the second one starts it.
    Add(source, CrankEngine(0.22, 6, 15), 0.05, 0.35);
    Add(source, CrankEngine(0.28, 6, 16), 0.48, 0.4);
    Add(source, Faded(std::move(running), 0.03, 0), 0.7, 1.0);
    const Curve away{{0, 2}, {4.3, 2}, {5.5, 18}, {6.3, 36}};
    return Passing(Lasting(std::move(source), lasting), {away, 5, 90});
}

Sound FourMotorcycle()
{
    constexpr double lasting = 5.8;
    const Curve revs{{0, 7000},    {0.5, 9800},  {0.56, 7400}, {1.5, 10400}, {1.56, 8300},
                     {2.9, 10800}, {2.96, 8900}, {4.6, 10900}, {4.66, 9300}, {5.8, 10400}};
    const Curve throttle{{0, 1},   {0.5, 1},  {0.52, 0}, {0.57, 1}, {1.5, 1},  {1.52, 0}, {1.57, 1},
                         {2.9, 1}, {2.92, 0}, {2.97, 1}, {4.6, 1},  {4.62, 0}, {4.67, 1}};
    const EngineKind kind = Tuned(straightFour, {.pulse = 0.0005, .pipes = {{0.6, 0.6}}, .muffler = 4600});
    Sound source = Running(kind, {lasting, revs, throttle, 21});
    Add(source, Rolling(lasting, 40.0, 0, 211, 0.12));
    const Curve along{{0, -62}, {1.5, -16}, {2.2, 8}, {5.8, 190}};
    return Passing(source, {along, 4, 130});
}

} // namespace torvik::sample
