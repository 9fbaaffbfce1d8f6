#include "sample/render/shading.h"

#include "sample/geometry/noise.h"

namespace torvik::sample {

namespace {

double FifthPower(double v)
{
    return v * v * v * v * v;
}

} // namespace

Shader::Shader(const Subject& subject, const Environment& light, const Vec& eye)
    : subject_(subject), light_(light), eye_(eye), half_(subject.shape ? subject.shape->length / 2 : 2.3)
{
    if (!subject.shape)
        return;
    for (double s = 0; s <= subject.shape->length + 0.01; s += 0.01)
        shoulders_.push_back(subject.shape->shoulder(s));
}

double Shader::ShoulderAt(double s) const
{
    const auto index = static_cast<std::size_t>(std::max(0.0, s * 100.0));
    return shoulders_[std::min(index, shoulders_.size() - 1)];
}

bool Shader::IsWheelArch(const Vec& at) const
{
    const CarShape& c = *subject_.shape;
    const double z = std::abs(at.z);
    if (std::abs(at.y) < 0.45 || z > 0.85)
        return false;
    for (const double axle : {c.frontAxle, c.rearAxle}) {
        const double along = at.x + half_ - axle;
        const double up = z - c.wheelRadius;
        if (along * along + up * up < c.archRadius * c.archRadius)
            return true;
    }
    return false;
}

Shader::Sheet Shader::SheetAt(const Vec& at, const Vec& normal) const
{
    const CarShape& c = *subject_.shape;
    const CarSkin& skin = *subject_.skin;
    const double s = at.x + half_;
    const double ax = std::abs(normal.x);
    const double ay = std::abs(normal.y);
    const double az = std::abs(normal.z);
    const double z = std::abs(at.z);
    const bool cabin = z > ShoulderAt(s) + 0.02 && s > c.cowl + 0.04 && s < c.cabinEnd;
    if (cabin) {
        if (ay > 0.60)
            return {&skin.side, s, z, {1, 0, 0}, {0, 0, 1}};
        return {&skin.top, s, at.y, {1, 0, 0}, {0, 1, 0}};
    }
    if (s < 0.55 && ax > ay * 0.95 && ax > az * 0.75)
        return {&skin.front, -at.y, z, {0, -1, 0}, {0, 0, 1}};
    if (s > c.length - 0.5 && ax > ay * 0.95 && ax > az * 0.75)
        return {&skin.rear, at.y, z, {0, 1, 0}, {0, 0, 1}};
    if (az > ay && z > 0.55)
        return {&skin.top, s, at.y, {1, 0, 0}, {0, 1, 0}};
    return {&skin.side, s, z, {1, 0, 0}, {0, 0, 1}};
}

bool Shader::IsGlass(const Vec& at, const Vec& normal) const
{
    if (subject_.clay || std::abs(at.z) < 0.75)
        return false;
    const double s = at.x + half_;
    const CarShape& c = *subject_.shape;
    if (s < c.cowl || s > c.cabinEnd)
        return false;
    const Sheet sheet = SheetAt(at, Unit(normal));
    return sheet.map->GlassAt(sheet.u, sheet.v) > 0.5;
}

Rgb Shader::Lit(const Material& m, const Vec& at, const Vec& normal, double metallic, double open) const
{
    const Vec toEye = Unit(eye_ - at);
    const double facing = std::max(0.0, Dot(normal, toEye));
    const Vec mirrored = Reflect(toEye * -1.0, normal);
    const double sunny = std::max(0.0, Dot(normal, light_.toSun));
    const Rgb soft = light_.Soft(normal) * open;
    const Rgb diffuse = m.colour * (soft + light_.sun * (sunny * 0.50 * open)) * 0.92;
    const double fresnel = 0.06 + 0.94 * FifthPower(1.0 - facing);
    const double gloss = 1.0 - m.rough;
    Rgb seen;
    if (gloss > 0.02 || m.metal > 0.02)
        seen = light_.Seen(at, mirrored);
    Rgb result = diffuse * (1.0 - m.metal) * (1.0 - 0.45 * metallic * gloss);
    result = result + seen * (fresnel * gloss * (1.0 - m.metal) * std::min(1.0, open + 0.1));
    if (metallic > 0 && m.metal < 0.5) {
        // Flakes give the colour a second, soft highlight.
        const double glint = std::pow(std::max(0.0, Dot(mirrored, light_.toSun)), 14.0);
        const Rgb flake = m.colour * (light_.Soft(mirrored) * 0.85 + light_.sun * (glint * 0.8)) * metallic;
        result = result + flake * (gloss * open * 0.8);
    }
    if (m.metal > 0) {
        const double blur = m.rough;
        const Rgb metal = Mix(seen, light_.Soft(mirrored) + light_.sun * (0.25 * sunny), blur);
        result = result + metal * m.colour * (m.metal * (0.35 + 0.65 * open));
    }
    return result + m.colour * (m.glow * 3.0);
}

Rgb Shader::Shade(const Mesh& part, const Vec& at, const Vec& rawNormal) const
{
    Vec normal = Unit(rawNormal);
    const Vec toEye = Unit(eye_ - at);
    const bool behind = Dot(normal, toEye) < 0;
    // Little of the sky reaches the underside and the wheel houses.
    const double open = 0.35 + 0.65 * SmoothStep(0.02, 0.5, std::abs(at.z));
    if (subject_.clay && part.finish != Finish::Wheel) {
        if (behind)
            return {0.01, 0.01, 0.01};
        Material clay;
        clay.colour = subject_.clayColour * (0.9 + 0.2 * Noise(at.x * 9 + at.y * 5, at.z * 14, 3));
        clay.rough = 0.93;
        if (part.finish == Finish::Skin && subject_.skin) {
            // The modellers cut the joints into the clay and lay dark foil where the panes will be.
            const Sheet sheet = SheetAt(at, normal);
            const Material drawn = sheet.map->At(sheet.u, sheet.v);
            normal = Unit(normal - sheet.axisU * drawn.slopeU - sheet.axisV * drawn.slopeV);
            clay.colour = Mix(clay.colour, Rgb{0.03, 0.03, 0.035}, Clamp01(drawn.glass));
            clay.rough = Mix(0.93, 0.35, Clamp01(drawn.glass));
        }
        return Lit(clay, at, normal, 0.0, open);
    }
    Material m;
    switch (part.finish) {
    case Finish::Skin: {
        if (behind)
            return Rgb{0.012, 0.012, 0.013};
        const Sheet sheet = SheetAt(at, normal);
        m = sheet.map->At(sheet.u, sheet.v);
        const double mirrorSign = at.z < 0 ? -1.0 : 1.0;
        normal = Unit(normal - sheet.axisU * m.slopeU - sheet.axisV * (m.slopeV * mirrorSign));
        return Lit(m, at, normal, subject_.skin->paint.metallic * (1.0 - m.rough) * (1.0 - m.glass), open);
    }
    case Finish::Wheel: {
        const double dx = at.x - part.centre.x;
        const double dz = at.z - part.centre.z;
        const double c = std::cos(part.turn);
        const double s = std::sin(part.turn);
        const double side = at.y < 0 ? 1.0 : -1.0;
        const double u = side * dx * c + dz * s;
        const double v = -side * dx * s + dz * c;
        m = subject_.skin->wheel.At(u, v);
        const double out = (at.y - part.centre.y) * (part.centre.y < 0 ? -1.0 : 1.0);
        const double radius = std::hypot(dx, dz);
        const double wheelRadius = subject_.shape->wheelRadius;
        if (out < 0.04 || radius > wheelRadius - 0.008) {
            m = Material{};
            m.colour = {0.022, 0.022, 0.023};
            // The grooves of the tread.
            const double groove = std::abs(out * 40.0 - Floor(out * 40.0) - 0.5);
            m.colour = m.colour * (groove > 0.38 ? 0.35 : 1.0);
            m.rough = 0.95;
        } else {
            const Vec axisU{side * c, 0, s};
            const Vec axisV{-side * s, 0, c};
            normal = Unit(normal - axisU * m.slopeU - axisV * m.slopeV);
        }
        // The arch keeps the light off the upper part of the tyre.
        const double shade = Mix(0.30, 1.0, SmoothStep(0.0, 0.35, wheelRadius * 1.55 - std::abs(at.z)));
        return Lit(m, at, normal, 0.0, open * shade);
    }
    case Finish::Chrome:
        m.colour = {0.93, 0.93, 0.95};
        m.metal = 1;
        break;
    case Finish::Rubber:
        m.colour = {0.035, 0.035, 0.037};
        m.rough = 0.75;
        break;
    case Finish::Paint:
        m.colour = LinearOf(subject_.skin->paint.colour);
        return Lit(m, at, behind ? normal * -1.0 : normal, subject_.skin->paint.metallic, open);
    case Finish::Cloth:
        m.colour = {0.05, 0.045, 0.04};
        m.rough = 0.9;
        return Lit(m, at, normal, 0.0, 0.35);
    case Finish::Dark:
        m.colour = {0.015, 0.015, 0.016};
        m.rough = 1.0;
        return Lit(m, at, normal, 0.0, 0.5);
    }
    return Lit(m, at, behind ? normal * -1.0 : normal, 0.0, open);
}

Shader::Pane Shader::ShadePane(const Vec& at, const Vec& rawNormal) const
{
    const Vec normal = Unit(rawNormal);
    const Vec toEye = Unit(eye_ - at);
    const double facing = std::max(0.0, Dot(normal, toEye));
    const double fresnel = 0.06 + 0.94 * FifthPower(1.0 - facing);
    const Rgb seen = light_.Seen(at, Reflect(toEye * -1.0, normal));
    const Rgb tint = Rgb{0.58, 0.64, 0.62} * (1.0 - fresnel);
    return {tint, seen * fresnel};
}

} // namespace torvik::sample
