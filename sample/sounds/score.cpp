#include "sample/sounds/score.h"

#include "sample/drawings/script.h"
#include "sample/geometry/curve.h"
#include "sample/geometry/vec.h"
#include "sample/sounds/engine.h"
#include "sample/sounds/filters.h"
#include "sample/sounds/motion.h"
#include "sample/sounds/road.h"

#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// What a rule makes of the second and of the values that its up to three courses have then.
using Rule = double (*)(double t, double a, double b, double c);

constexpr std::pair<const char*, Rule> rules[] = {
    {"steady", [](double t, double speed, double passing, double) { return speed * (t - passing); }},
    {"falling",
     [](double t, double low, double high, double fall) { return low + high * std::exp(-t / fall); }},
    {"swaying",
     [](double t, double mid, double by, double turn) { return mid + by * std::sin(2 * pi * t / turn); }},
    {"share", [](double, double least, double part, double course) { return least + part * course; }},
    {"smaller", [](double, double one, double other, double) { return std::min(one, other); }},
    {"until",
     [](double t, double change, double before, double after) { return t < change ? before : after; }},
};

/// A number, a list of seconds and values, or a rule with its courses.
Course CourseOf(const Value& value)
{
    if (!value.IsList())
        return Always(value.Number());
    if (value.At(0).IsText()) {
        const auto* known = std::find_if(std::begin(rules), std::end(rules), [&](const auto& rule) {
            return value.At(0).Text() == QLatin1String(rule.first);
        });
        if (known == std::end(rules))
            throw std::runtime_error("There is no such rule.");
        return [rule = known->second, a = CourseOf(value.At(1)), b = CourseOf(value.At(2)),
                c = value.Items().size() > 3 ? CourseOf(value.At(3)) : Always(0)](double t) {
            return rule(t, a(t), b(t), c(t));
        };
    }
    std::vector<double> points;
    for (const Value& point : value.Items())
        points.insert(points.end(), {point.At(0).Number(), point.At(1).Number()});
    return Curve(points);
}

std::vector<double> NumbersOf(const Value& list)
{
    std::vector<double> numbers;
    for (const Value& number : list.Items())
        numbers.push_back(number.Number());
    return numbers;
}

std::uint32_t Seed(const Value& value)
{
    return static_cast<std::uint32_t>(value.Whole());
}

/// The name of an engine, or a list of its name and of what is different in it.
EngineKind EngineOf(const Value& value)
{
    const std::pair<QLatin1String, const EngineKind*> kinds[] = {{"burblingEight"_L1, &burblingEight},
                                                                 {"screamingEight"_L1, &screamingEight},
                                                                 {"straightSix"_L1, &straightSix},
                                                                 {"airCooledSix"_L1, &airCooledSix},
                                                                 {"straightFour"_L1, &straightFour},
                                                                 {"bigTwin"_L1, &bigTwin},
                                                                 {"diesel"_L1, &diesel},
                                                                 {"turbocharged"_L1, &turbocharged}};
    const std::pair<QLatin1String, double EngineKind::*> numbers[] = {
        {"pulse"_L1, &EngineKind::pulse},
        {"ring"_L1, &EngineKind::ring},
        {"muffler"_L1, &EngineKind::muffler},
        {"rough"_L1, &EngineKind::rough},
        {"lope"_L1, &EngineKind::lope},
        {"whine"_L1, &EngineKind::whine},
        {"whineRatio"_L1, &EngineKind::whineRatio},
        {"crackle"_L1, &EngineKind::crackle}};
    const Value& name = value.IsList() ? value.At(0) : value;
    const auto* known = std::find_if(std::begin(kinds), std::end(kinds),
                                     [&](const auto& kind) { return kind.first == name.Text(); });
    if (known == std::end(kinds))
        throw std::runtime_error("There is no such engine.");
    EngineKind kind = *known->second;
    for (std::size_t i = 1; value.IsList() && i < value.Items().size(); ++i) {
        const Value& change = value.At(i);
        if (change.At(0).Text() == "pipes"_L1)
            kind.pipes = {change.At(1).Number(), change.At(2).Number()};
        for (const auto& [word, field] : numbers) {
            if (change.At(0).Text() == word)
                kind.*field = change.At(1).Number();
        }
    }
    return kind;
}

Driving DrivingOf(const Value& list)
{
    return {list.At(0).Number(), CourseOf(list.At(1)), CourseOf(list.At(2)), Seed(list.At(3))};
}

Drive DriveOf(const Value& list)
{
    Drive drive{CourseOf(list.At(0)), list.At(1).Number()};
    if (list.Items().size() > 2)
        drive.dulled = list.At(2).Number();
    return drive;
}

/// The sounds of a score while it is played; a script knows them by their numbers.
class Sounds {
public:
    using Channels = std::vector<Sound>;

    Value Keep(Channels sound)
    {
        kept_.push_back(std::move(sound));
        return static_cast<double>(kept_.size() - 1);
    }
    Channels& Of(const Value& number) { return kept_.at(static_cast<std::size_t>(number.Whole())); }

    void TeachSources(Script& script);
    void TeachChanges(Script& script);

private:
    std::vector<Channels> kept_;
};

using Source = Sound (*)(const Arguments& a);

constexpr std::pair<const char*, Source> sources[] = {
    {"silence", [](const Arguments& a) { return Silence(a.Number(0)); }},
    {"runRaw", [](const Arguments& a) { return RunEngine(EngineOf(a.at(0)), DrivingOf(a.at(1))); }},
    {"running",
     [](const Arguments& a) {
         return Running(EngineOf(a.at(0)), DrivingOf(a.at(1)), a.size() > 2 ? a.Number(2) : 1);
     }},
    {"crank", [](const Arguments& a) { return CrankEngine(a.Number(0), a.Number(1), Seed(a.at(2))); }},
    {"rolling",
     [](const Arguments& a) {
         return Rolling(a.Number(0), a.Number(1), a.Number(2), Seed(a.at(3)), a.Number(4));
     }},
    {"tyreRoll",
     [](const Arguments& a) { return TyreRoll(a.Number(0), CourseOf(a.at(1)), a.Number(2), Seed(a.at(3))); }},
    {"squeal", [](const Arguments& a) { return TyreSqueal(a.Number(0), CourseOf(a.at(1)), Seed(a.at(2))); }},
    {"horn", [](const Arguments& a) { return CarHorn(a.Number(0), NumbersOf(a.at(1)), a.Number(2)); }},
    {"struck", [](const Arguments& a) { return Struck(a.Number(0), NumbersOf(a.at(1)), a.Number(2)); }},
    {"rich",
     [](const Arguments& a) { return RichTone(a.Number(0), CourseOf(a.at(1)), a.Whole(2), a.Number(3)); }},
    {"white", [](const Arguments& a) { return WhiteNoise(a.Number(0), Seed(a.at(1))); }},
    {"slow", [](const Arguments& a) { return SlowNoise(a.Number(0), a.Number(1), Seed(a.at(2))); }},
    {"pure", [](const Arguments& a) { return PureTone(a.Number(0), CourseOf(a.at(1))); }},
    {"truckHorn", [](const Arguments& a) { return TruckHorn(a.Number(0)); }},
    {"onIce", [](const Arguments& a) { return WheelOnIce(a.Number(0), CourseOf(a.at(1)), Seed(a.at(2))); }},
    {"siren", [](const Arguments& a) { return Siren(a.Number(0), a.Number(1)); }},
    {"backfire", [](const Arguments& a) { return Backfire(Seed(a.at(0))); }},
    {"doorCreak", [](const Arguments& a) { return DoorCreak(a.Number(0), Seed(a.at(1))); }},
};

/// What is done to each channel by itself.
using Change = Sound (*)(const Sound& sound, const Arguments& a);

constexpr std::pair<const char*, Change> changes[] = {
    {"levelled", [](const Sound& s, const Arguments& a) { return Levelled(s, a.Number(1)); }},
    {"faded", [](const Sound& s, const Arguments& a) { return Faded(s, a.Number(1), a.Number(2)); }},
    {"lasting", [](const Sound& s, const Arguments& a) { return Lasting(s, a.Number(1)); }},
    {"lowpass", [](const Sound& s, const Arguments& a) { return Filtered(s, Filter::LowPass(a.Number(1))); }},
    {"highpass",
     [](const Sound& s, const Arguments& a) { return Filtered(s, Filter::HighPass(a.Number(1))); }},
    {"bandpass", [](const Sound& s,
                    const Arguments& a) { return Filtered(s, Filter::BandPass(a.Number(1), a.Number(2))); }},
    {"driven", [](const Sound& s, const Arguments& a) { return Driven(s, a.Number(1)); }},
    {"inRoom", [](const Sound& s, const Arguments& a) { return InRoom(s, a.Number(1), a.Number(2)); }},
    {"shaped", [](const Sound& s, const Arguments& a) { return Shaped(s, CourseOf(a.at(1))); }},
    {"passing", [](const Sound& s, const Arguments& a) { return Passing(s, DriveOf(a.at(1))); }},
};

void Sounds::TeachSources(Script& script)
{
    for (const auto& [name, source] : sources)
        script.Teach(name, [this, source = source](const Arguments& a) { return Keep({source(a)}); });
    script.Teach("bothEars", [this](const Arguments& a) {
        TwoEars both = PassingBothEars(Of(a.at(0)).front(), DriveOf(a.at(1)));
        return Keep({std::move(both.left), std::move(both.right)});
    });
    script.Teach("placed", [this](const Arguments& a) {
        TwoEars both = Placed(Of(a.at(0)).front(), a.Number(1));
        return Keep({std::move(both.left), std::move(both.right)});
    });
}

void Sounds::TeachChanges(Script& script)
{
    for (const auto& [name, change] : changes) {
        script.Teach(name, [this, change = change](const Arguments& a) {
            Channels changed;
            for (const Sound& channel : Of(a.at(0)))
                changed.push_back(change(channel, a));
            return Keep(std::move(changed));
        });
    }
    // As loud as another sound says, on top of a number.
    script.Teach("swelling", [this](const Arguments& a) {
        Channels sound = Of(a.at(0));
        const Sound& swell = Of(a.at(3)).front();
        for (std::size_t i = 0; i < swell.size(); ++i)
            sound.front()[i] *= a.Number(1) + a.Number(2) * swell[i];
        return Keep(std::move(sound));
    });
    script.Teach("loudest", [this](const Arguments& a) { return Loudest(Of(a.at(0)).front()); });
    script.Teach("add", [this](const Arguments& a) {
        Channels& onto = Of(a.at(0));
        const Channels& what = Of(a.at(1));
        for (std::size_t i = 0; i < onto.size(); ++i)
            Add(onto[i], what.at(i), a.size() > 2 ? a.Number(2) : 0, a.size() > 3 ? a.Number(3) : 1);
        return Value();
    });
}

} // namespace

std::vector<Sound> PlayScore(const char* file, const QString& name, const std::vector<double>& numbers)
{
    Sounds sounds;
    Script script(file);
    TeachShapes(script);
    sounds.TeachSources(script);
    sounds.TeachChanges(script);
    script.Run();
    return sounds.Of(script.Call(name, Arguments(numbers.begin(), numbers.end())));
}

} // namespace torvik::sample
