#include "sample/scenery/place_script.h"

#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/render/painting_words.h"
#include "sample/scenery/backdrop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr std::pair<const char*, Vec Daylight::*> lightColours[] = {
    {"toSun", &Daylight::toSun},     {"sun", &Daylight::sun},       {"zenith", &Daylight::zenith},
    {"horizon", &Daylight::horizon}, {"ground", &Daylight::ground}, {"band", &Daylight::band}};
constexpr std::pair<const char*, double Daylight::*> lightNumbers[] = {{"bandHeight", &Daylight::bandHeight},
                                                                       {"clouds", &Daylight::clouds}};
constexpr std::pair<const char*, double Scenery::*> numbers[] = {
    {"hazeReach", &Scenery::hazeReach},
    {"backdropBlur", &Scenery::backdropBlur},
    {"floorShine", &Scenery::floorShine},
    {"shadowStrength", &Scenery::shadowStrength}};

Value ListOf(const Vec& v)
{
    return Value::List{v.x, v.y, v.z};
}

Vec VecOf(const Value& list)
{
    return {list.At(0).Number(), list.At(1).Number(), list.At(2).Number()};
}

std::uint32_t Seed(const Value& value)
{
    return static_cast<std::uint32_t>(value.Number());
}

/// The words for chance. luck(seed) begins a new row of random numbers.
void TeachChance(Script& script, Random& random, std::uint32_t seed)
{
    TeachShapes(script);
    TeachLuck(script, random);
    script.Set(u"seed"_s, seed);
    script.Teach("luck", [&random](const Arguments& a) {
        random = Random(Seed(a.at(0)));
        return Value();
    });
    script.Teach("noise", [](const Arguments& a) { return Noise(a.Number(0), a.Number(1), Seed(a.at(2))); });
    script.Teach("hash", [](const Arguments& a) { return Hash(a.Whole(0), a.Whole(1), Seed(a.at(2))); });
    script.Teach("fractal", [](const Arguments& a) {
        return Fractal(a.Number(0), a.Number(1), a.Whole(2), Seed(a.at(3)));
    });
    script.Teach("smooth",
                 [](const Arguments& a) { return SmoothStep(a.Number(0), a.Number(1), a.Number(2)); });
}

/// A standing thing as a list: x, y, pixels a metre, depth and whether it is seen; and back.
Value ListOf(const Standing& at)
{
    return Value::List{at.x, at.y, at.metre, at.depth, at.visible ? 1.0 : 0.0};
}

Standing StandingOf(const Value& list)
{
    return {list.At(0).Number(), list.At(1).Number(), list.At(2).Number(), list.At(3).Number(),
            list.At(4).Number() != 0};
}

/// stand(place), tree, fir, bar, hazed and grove as backdrop.h has them; ridge(name, top, foot), where the
/// procedure of that name gives the height by azimuth.
void TeachBackdrop(Script& script, QPainter& painter, const Camera& camera)
{
    script.Set(u"width"_s, painter.device()->width());
    script.Set(u"skyline"_s, camera.HorizonRow());
    script.Set(u"focal"_s, camera.focal);
    script.Teach("stand", [&camera](const Arguments& a) {
        return ListOf(StandAt(camera, a.Number(0), a.Number(1), a.size() > 2 ? a.Number(2) : 0));
    });
    script.Teach("boxBetween", [](const Arguments& a) { return BoxBetween(a.Point(0), a.Point(1)); });
    script.Teach("overlap", [](const Arguments& a) { return a.Box(0).intersected(a.Box(1)); });
    script.Teach("hazed", [](const Arguments& a) { return Hazed(a.Colour(0), a.Colour(1), a.Number(2)); });
    script.Teach("ridge", [&](const Arguments& a) {
        const auto height = [&](double azimuth) { return script.Call(a.Text(0), {azimuth}).Number(); };
        PaintRidge(painter, camera, height, a.Colour(1), a.Colour(2));
        return Value();
    });
    script.Teach("bar", [&](const Arguments& a) {
        PaintBar(painter, camera, VecOf(a.at(0)), VecOf(a.at(1)), a.Number(2), a.Colour(3));
        return Value();
    });
    script.Teach("tree", [&painter](const Arguments& a) {
        PaintTree(painter, StandingOf(a.at(0)), a.Number(1), a.Colour(2), a.Colour(3), Seed(a.at(4)));
        return Value();
    });
    script.Teach("fir", [&painter](const Arguments& a) {
        PaintFir(painter, StandingOf(a.at(0)), a.Number(1), a.Colour(2), a.Number(3), Seed(a.at(4)));
        return Value();
    });
    script.Teach("grove", [&camera](const Arguments& a) {
        Value::List trunks;
        for (const Trunk& t : Grove(Seed(a.at(0)), a.Whole(1), a.Number(2), camera))
            trunks.push_back(Value::List{t.x, t.y, t.tall, static_cast<double>(t.kind)});
        return trunks;
    });
}

void PaintBackdrop(const char* name, std::uint32_t seed, QPainter& painter, const Camera& camera)
{
    Random random(seed);
    Script script(name);
    TeachPainting(script, painter);
    TeachChance(script, random, seed);
    script.Run();
    TeachBackdrop(script, painter, camera);
    script.Call(u"backdrop"_s, {});
}

} // namespace

Scenery PlaceFrom(const char* name, std::uint32_t seed, Scenery s)
{
    Random random(seed);
    Script script(name);
    TeachChance(script, random, seed);
    script.Set(u"haze"_s, ListOf(s.haze));
    for (const auto& [word, field] : numbers)
        script.Set(QString::fromLatin1(word), s.*field);
    script.Run();
    for (const auto& [word, field] : lightColours)
        s.light.*field = VecOf(script.Get(word));
    for (const auto& [word, field] : lightNumbers)
        s.light.*field = script.Get(word).Number();
    for (const auto& [word, field] : numbers)
        s.*field = script.Get(word).Number();
    s.light.toSun = Unit(s.light.toSun);
    s.light.seed = seed;
    s.haze = VecOf(script.Get("haze"));
    // A place that is only seen in another light keeps what it has.
    if (!s.backdrop) {
        s.backdrop = [name, seed](QPainter& painter, const Camera& camera) {
            PaintBackdrop(name, seed, painter, camera);
        };
    }
    return s;
}

} // namespace torvik::sample
