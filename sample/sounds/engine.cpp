#include "sample/sounds/engine.h"

#include "sample/geometry/noise.h"
#include "sample/geometry/vec.h"
#include "sample/sounds/filters.h"

namespace torvik::sample {

namespace {

constexpr double soundSpeedInPipe = 480; // metres a second, in hot gas
constexpr double mouthHertz = 210;       // hertz below which the end of a pipe sounds less and less

/// A pipe, open at its far end: what comes back from there is turned over and a little duller.
class Pipe {
public:
    Pipe(double metres, double ring)
        : line_(std::max<std::size_t>(8, SamplesIn(2 * metres / soundSpeedInPipe)), 0.0), ring_(ring)
    {}

    double operator()(double in)
    {
        dull_ += (line_[at_] - dull_) * 0.5;
        const double out = in - ring_ * dull_;
        line_[at_] = out;
        at_ = (at_ + 1) % line_.size();
        return out;
    }

private:
    std::vector<double> line_;
    std::size_t at_ = 0;
    double ring_;
    double dull_ = 0;
};

/// The bang of a cylinder: up at once, then down within `seconds`.
class Bang {
public:
    explicit Bang(double seconds) : keep_(std::exp(-1.0 / (seconds * soundRate))), rise_((1 - keep_) * 2.7) {}

    void Fire(double strength) { charge_ += strength; }
    double operator()()
    {
        level_ = level_ * keep_ + charge_ * rise_;
        charge_ *= keep_;
        return level_;
    }

private:
    double keep_;
    double rise_;
    double charge_ = 0;
    double level_ = 0;
};

/// Bangs at equal distances, dealt in turn to so many pipes.
std::vector<Firing> Evenly(int cylinders, int pipes)
{
    std::vector<Firing> firings;
    firings.reserve(static_cast<std::size_t>(cylinders));
    for (int i = 0; i < cylinders; ++i)
        firings.push_back({static_cast<double>(i) / cylinders, 1.0 - 0.12 * ((i * 5) % 3), i % pipes});
    return firings;
}

const std::vector<Firing> burble = {{0.0 / 8, 1.0, 0},  {1.0 / 8, 0.78, 1}, {2.0 / 8, 0.95, 1},
                                    {3.0 / 8, 0.7, 0},  {4.0 / 8, 1.0, 1},  {5.0 / 8, 0.84, 0},
                                    {6.0 / 8, 0.74, 0}, {7.0 / 8, 0.92, 1}};
const std::vector<Firing> twin = {{0.0, 1.0, 0}, {315.0 / 720.0, 0.86, 1}};

} // namespace

// Firings, pulse, pipes, ring, muffler, roughness, lope, intake, hiss, ticking and its pitch, whine and its
// ratio, crackle.
const EngineKind burblingEight{burble, 0.0017, {1.9, 2.25}, 0.62, 1100, 0.12, 0.2};
const EngineKind screamingEight{Evenly(8, 2), 0.0006, {0.75, 0.8}, 0.7,  4800, 0.2, 0,
                                0.4,          0.10,   0.05,        3200, 0,    12,  0.8};
const EngineKind straightSix{Evenly(6, 1), 0.0022, {2.6, 2.6}, 0.5, 620, 0.08, 0, 0.25, 0.10, 0.12, 2300};
const EngineKind airCooledSix{Evenly(6, 2), 0.0010, {0.9, 1.05}, 0.66, 1900, 0.12, 0,
                              0.45,         0.10,   0.2,         4200, 0.05, 19};
const EngineKind straightFour{Evenly(4, 1), 0.0007, {0.85, 0.85}, 0.6, 3600, 0.12, 0, 0.35, 0.10, 0.08};
const EngineKind bigTwin{twin, 0.0026, {0.95, 1.15}, 0.5, 1700, 0.2, 0.45, 0.25, 0.10, 0.1, 2600};
const EngineKind diesel{Evenly(6, 2), 0.0030, {3.4, 3.4}, 0.45, 700,  0.12, 0,
                        0.25,         0.10,   0.55,       1250, 0.06, 41};
const EngineKind turbocharged{Evenly(8, 2), 0.0006, {0.75, 0.8}, 0.7,  3000, 0.2, 0,
                              0.4,          0.10,   0.05,        3200, 0.16, 17,  0.3};

Sound RunEngine(const EngineKind& kind, const Driving& driving)
{
    Random random(driving.seed);
    Sound sound = Silence(driving.seconds);
    std::array<Pipe, 2> pipes = {Pipe(kind.pipes[0], kind.ring), Pipe(kind.pipes[1], kind.ring)};
    std::array<Bang, 2> bangs = {Bang(kind.pulse), Bang(kind.pulse)};
    Bang valve(0.004);
    Bang pop(0.006);
    Filter roar = Filter::BandPass(520, 0.8);
    Filter rattle = Filter::BandPass(kind.tickHertz, 2.5);
    Filter gas = Filter::BandPass(1500, 0.6);
    std::array<double, 3> behindMuffler{};
    double standing = 0;
    double phase = 0;
    double whinePhase = 0;
    double throttleBefore = driving.throttle(0);
    double overrun = 0;
    std::size_t next = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double t = static_cast<double>(i) / soundRate;
        const double throttle = Clamp01(driving.throttle(t));
        const double revs = std::max(60.0, driving.revs(t));
        // An idling engine with a sporty camshaft falls over its own feet.
        const double calm = kind.lope * std::exp(-std::max(0.0, revs - 700) / 500);
        const double stumble = 1 + 0.10 * calm * std::sin(2 * pi * 2.1 * t) * std::sin(2 * pi * 0.73 * t + 1);
        phase += revs * stumble / 120.0 / soundRate;
        // A throttle that closes leaves fuel in the pipes for a while.
        overrun =
            std::max(overrun * (1 - 1.2 / soundRate), std::min(1.0, (throttleBefore - throttle) * 4000));
        throttleBefore += (throttle - throttleBefore) * 0.0005;
        while (next < kind.firings.size() && phase >= kind.firings[next].at) {
            const Firing& firing = kind.firings[next];
            const double luck = 1 + (kind.rough + 0.5 * calm) * random.Between(-1, 1);
            const double weak = calm > 0 && random.Unit() < 0.12 * calm ? 0.3 : 1.0;
            bangs[static_cast<std::size_t>(firing.pipe)].Fire(firing.bang * luck * weak *
                                                              (0.30 + 0.70 * throttle));
            valve.Fire(random.Between(0.5, 1.0));
            if (random.Unit() < kind.crackle * overrun * (1 - throttle) * 0.25)
                pop.Fire(random.Between(0.4, 1.2));
            ++next;
        }
        if (phase >= 1) {
            phase -= 1;
            next = 0;
        }
        const double white = random.Between(-1, 1);
        const double left = bangs[0]();
        const double right = bangs[1]();
        const double burst = pop();
        const double gasNoise = gas(white) * kind.hiss * 6 * (left + right);
        double out = pipes[0](left + gasNoise + burst * white * 0.5) + pipes[1](right + gasNoise * 0.8);
        const double open = kind.muffler * (0.55 + 0.75 * throttle + revs / 9000) + 2500 * burst;
        const double share = 1 - std::exp(-2 * pi * open / soundRate);
        for (double& stage : behindMuffler) {
            stage += (out - stage) * share;
            out = stage;
        }
        // A pipe's mouth is small beside the waves of deep tones and gives little of them to the air.
        standing += (out - standing) * (1 - std::exp(-2 * pi * mouthHertz / soundRate));
        out -= standing;
        whinePhase += revs / 60.0 * kind.whineRatio / soundRate;
        whinePhase -= std::floor(whinePhase);
        const double effort = throttle * std::min(1.0, revs / 5000);
        sound[i] =
            out + kind.intake * roar(white) * (left + right) * (0.3 + 2.2 * effort) +
            kind.ticking * rattle(white) * valve() * 1.6 +
            kind.whine * std::sin(2 * pi * whinePhase) * (0.3 + 0.7 * throttle) * std::min(1.5, revs / 3500);
    }
    return Filtered(std::move(sound), Filter::HighPass(45));
}

Sound Running(const EngineKind& kind, const Driving& driving, double level)
{
    return Levelled(RunEngine(kind, driving), level);
}

Sound CrankEngine(double seconds, double turns, std::uint32_t seed)
{
    Random random(seed);
    const double lag = random.Between(0, 1);
    // Each compression slows the motor down; then it runs away until the next.
    const auto load = [=](double t) { return 0.5 + 0.5 * std::sin(2 * pi * (turns * t + lag)); };
    const Course hertz = [=](double t) { return 165 + 9 * turns - 42 * load(t); };
    Sound motor = RichTone(seconds, hertz, 18, 0.85);
    motor = Filtered(std::move(motor), Filter::BandPass(900, 0.6));
    Sound teeth = Filtered(WhiteNoise(seconds, seed + 1), Filter::BandPass(2100, 1.1));
    Sound chuff = Filtered(WhiteNoise(seconds, seed + 2), Filter::LowPass(240));
    motor = Shaped(std::move(motor), [=](double t) { return 0.55 + 0.45 * load(t); });
    Add(motor, Shaped(std::move(teeth), [=](double t) { return 0.35 * (0.4 + 0.6 * load(t)); }));
    Add(motor, Shaped(std::move(chuff), [=](double t) { return 1.6 * std::pow(load(t), 3); }));
    // The pinion goes in with a clack.
    Add(motor, Struck(0.05, {1400, 2300, 3900}, 0.012), 0, 0.7);
    return Faded(Lasting(std::move(motor), seconds), 0.01, 0.05);
}

} // namespace torvik::sample
