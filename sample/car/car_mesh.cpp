#include "sample/car/car_mesh.h"

#include <algorithm>
#include <iterator>

namespace torvik::sample {

namespace {

/// One half of a cross section: from the foot of the flank to the middle of the upper side; y is the half
/// width.
struct SectionPoint {
    double y;
    double z;
};
using Section = std::vector<SectionPoint>;

/// Walks along the corners and rounds each inner one by its radius; every section gets the same number of
/// points.
Section RoundedLine(const Section& corners, const std::vector<double>& radii,
                    const std::vector<double>& bulges)
{
    Section line;
    SectionPoint from = corners.front();
    for (std::size_t i = 1; i < corners.size(); ++i) {
        const SectionPoint to = corners[i];
        const bool last = i + 1 == corners.size();
        const double length = std::hypot(to.y - corners[i - 1].y, to.z - corners[i - 1].z);
        double cut = last ? 0.0 : radii[i - 1];
        if (!last) {
            const double next = std::hypot(corners[i + 1].y - to.y, corners[i + 1].z - to.z);
            cut = std::min({cut, length * 0.48, next * 0.48});
        }
        const double share = length > 1e-9 ? 1.0 - cut / length : 1.0;
        const SectionPoint end{Mix(corners[i - 1].y, to.y, share), Mix(corners[i - 1].z, to.z, share)};
        const double dy = end.y - from.y;
        const double dz = end.z - from.z;
        constexpr int stepsPerSide = 8;
        for (int k = 0; k < stepsPerSide; ++k) {
            const double t = static_cast<double>(k) / stepsPerSide;
            const double bow = bulges[i - 1] * 4 * t * (1 - t);
            const double span = std::max(1e-9, std::hypot(dy, dz));
            line.push_back({from.y + dy * t + bow * dz / span, from.z + dz * t - bow * dy / span});
        }
        if (last) {
            line.push_back(end);
            break;
        }
        const double next = std::max(1e-9, std::hypot(corners[i + 1].y - to.y, corners[i + 1].z - to.z));
        const SectionPoint leave{Mix(to.y, corners[i + 1].y, cut / next),
                                 Mix(to.z, corners[i + 1].z, cut / next)};
        constexpr int stepsPerBend = 5;
        for (int k = 0; k < stepsPerBend; ++k) {
            const double t = static_cast<double>(k) / stepsPerBend;
            const double a = (1 - t) * (1 - t);
            const double b = 2 * t * (1 - t);
            const double c = t * t;
            line.push_back({a * end.y + b * to.y + c * leave.y, a * end.z + b * to.z + c * leave.z});
        }
        from = leave;
    }
    return line;
}

Section BodySection(const CarShape& c, double s)
{
    const double width = c.halfWidth(s);
    const double foot = c.bottom(s);
    const double widest = std::max(c.widest(s), foot + 0.06);
    const double shoulder = std::max(c.shoulder(s), widest + 0.05);
    const double centre = std::max(c.centre(s), shoulder + 0.005);
    const double top = width - c.shoulderInset;
    return RoundedLine({{width - 0.075, foot}, {width, widest}, {top, shoulder}, {0.0, centre}},
                       {0.13, c.shoulderRadius, 0.0}, {0.012, 0.006, (centre - shoulder) * 0.45});
}

/// Moves a point of the straight loft to where nose and tail lean, bow and round off.
Vec Shaped(const CarShape& c, double s, double y, double z)
{
    double x = s;
    const double width = c.halfWidth(s);
    const double across = std::pow(std::min(1.0, std::abs(y) / width), 2.4);
    const double nose = 1.0 - SmoothStep(0.0, 0.8, s);
    const double tail = SmoothStep(c.length - 0.6, c.length, s);
    x += nose * (c.noseSetBack(z) + c.noseBow * across);
    x -= tail * (c.tailSetBack(z) + c.tailBow * across);
    // Muscles over the wheels.
    for (const double axle : {c.frontAxle, c.rearAxle}) {
        const double away = std::hypot(s - axle, z - c.wheelRadius);
        const double swell = std::exp(-std::pow(std::max(0.0, away - c.archRadius) / 0.13, 2.0));
        if (std::abs(y) > 0.5 && z < c.shoulder(s))
            y += (y > 0 ? 1.0 : -1.0) * c.flare * swell;
    }
    // The power bulge of the bonnet.
    if (s < c.cowl + 0.1 && z > c.shoulder(s) - 0.02) {
        const double bulge = SmoothStep(0.15, 0.7, s) * (1.0 - SmoothStep(0.20, 0.34, std::abs(y)));
        z += c.bonnetBulge * bulge;
        if (c.bonnetScoop) {
            const double scoop = SmoothStep(0.78, 0.84, s) * (1.0 - SmoothStep(0.86, c.cowl - 0.1, s)) *
                                 (1.0 - SmoothStep(0.15, 0.2, std::abs(y)));
            z += 0.045 * scoop;
        }
    }
    if (c.ductTail && z > c.shoulder(s) - 0.03)
        z += 0.045 * SmoothStep(c.length - 0.32, c.length - 0.02, s);
    return {x - c.length / 2, y, z};
}

std::vector<double> Stations(const CarShape& c)
{
    constexpr std::array ends = {0.0, 0.004, 0.010, 0.018, 0.028, 0.042, 0.06, 0.08};
    std::vector<double> stations(ends.begin(), ends.end());
    for (double s = 0.105; s < c.length - 0.1; s += 0.04)
        stations.push_back(s);
    std::transform(ends.rbegin(), ends.rend(), std::back_inserter(stations),
                   [&c](double end) { return c.length - end; });
    return stations;
}

/// How much a section close to an end has shrunk by the rounding of that end.
double EndInset(const CarShape& c, double s)
{
    const double depth = std::min(s, c.length - s);
    if (depth >= c.edgeRadius)
        return 0.0;
    const double t = 1.0 - depth / c.edgeRadius;
    return c.edgeRadius * (1.0 - std::sqrt(std::max(0.0, 1.0 - t * t)));
}

std::vector<Vec> BodyRow(const CarShape& c, double s, double shrink)
{
    const Section half = BodySection(c, s);
    const double inset = EndInset(c, s);
    const double middle = (c.bottom(s) + c.centre(s)) / 2;
    const double tall = (c.centre(s) - c.bottom(s)) / 2;
    const double keepY = (1.0 - inset / c.halfWidth(s)) * shrink;
    const double keepZ = (1.0 - inset / tall) * shrink;
    std::vector<Vec> row;
    // The floor closes the section, so that nobody looks into the body from below.
    const double foot = middle + (half.front().z - middle) * keepZ;
    row.push_back(Shaped(c, s, 0.0, foot));
    for (const SectionPoint& p : half)
        row.push_back(Shaped(c, s, -p.y * keepY, middle + (p.z - middle) * keepZ));
    for (std::size_t i = half.size() - 1; i-- > 0;)
        row.push_back(Shaped(c, s, half[i].y * keepY, middle + (half[i].z - middle) * keepZ));
    row.push_back(Shaped(c, s, 0.0, foot));
    return row;
}

Mesh Body(const CarShape& c)
{
    Mesh mesh;
    std::vector<std::vector<Vec>> rows;
    for (const double s : Stations(c))
        rows.push_back(BodyRow(c, s, 1.0));
    AddGrid(mesh, rows, {0, 0, 0.3});
    for (const double end : {0.0, c.length}) {
        std::vector<std::vector<Vec>> rings;
        for (int i = 0; i <= 14; ++i)
            rings.push_back(BodyRow(c, end, std::max(0.01, 1.0 - i / 14.0)));
        AddGrid(mesh, rings, {0, 0, 0.55});
    }
    return mesh;
}

std::vector<Vec> CabinRow(const CarShape& c, double s)
{
    const double belt = BeltAt(c, s) - 0.04;
    const double roof = std::max(c.roof(s), belt + 0.01);
    const double foot = ShoulderHalfWidth(c, s) - 0.035;
    const double rail = foot - c.tumble * (roof - belt);
    const double radius = std::min(0.10, (roof - belt) * 0.42);
    const Section half =
        RoundedLine({{foot, belt}, {rail, roof - 0.045}, {0.0, roof}}, {radius, 0.0}, {0.022, 0.014});
    const double bow = 1.0 - SmoothStep(c.cowl, c.header + 0.35, s);
    const double rearBow = SmoothStep(c.rearHeader - 0.3, c.cabinEnd, s);
    const auto place = [&](double y, double z) {
        const double across = std::pow(std::abs(y) / foot, 2.2);
        return Vec{s + 0.17 * bow * across - 0.10 * rearBow * across - c.length / 2, y, z};
    };
    std::vector<Vec> row;
    for (const SectionPoint& p : half)
        row.push_back(place(-p.y, p.z));
    for (std::size_t i = half.size() - 1; i-- > 0;)
        row.push_back(place(half[i].y, half[i].z));
    return row;
}

Mesh Cabin(const CarShape& c)
{
    Mesh mesh;
    mesh.mayBeGlass = true;
    std::vector<std::vector<Vec>> rows;
    const int steps = 80;
    for (int i = 0; i <= steps; ++i)
        rows.push_back(CabinRow(c, Mix(c.cowl, c.cabinEnd, static_cast<double>(i) / steps)));
    AddGrid(mesh, rows, {(c.header + c.rearHeader) / 2 - c.length / 2, 0, 0.9});
    return mesh;
}

/// A bar with a rounded section that follows the plan of nose or tail.
Mesh BumperBar(const CarShape& c, bool front, double height, double tall, double stand, Finish finish)
{
    const double s = front ? 0.0 : c.length;
    const double reach = c.halfWidth(s) + 0.012;
    const double sign = front ? -1.0 : 1.0;
    std::vector<Vec> path;
    for (int i = -26; i <= 26; ++i) {
        const double t = i / 26.0;
        Vec p = Shaped(c, s, reach * 0.985 * t, height);
        p.x += sign * stand;
        path.push_back(p);
    }
    // The ends wrap round the corners.
    const double wrap = front ? 0.34 : 0.40;
    for (int k = 1; k <= 8; ++k) {
        const double along = wrap * k / 8;
        const double at = front ? along : c.length - along;
        Vec p = Shaped(c, at, c.halfWidth(at) + 0.03, height);
        p.y = std::max(p.y, path.back().y - 0.01);
        Vec q = p;
        q.y = -q.y;
        path.push_back(p);
        path.insert(path.begin(), q);
    }
    const Vec middle{s - c.length / 2, 0, height};
    const int count = static_cast<int>(path.size());
    // The normals of a tube are best judged from its own path; each ring is closed, so the sum decides well
    // enough.
    Mesh mesh = Lofted(finish, count, 15, middle + Vec{-sign * 0.3, 0, 0}, [&](int row, int k) {
        const auto i = static_cast<std::size_t>(row);
        const Vec along = Unit(path[row + 1 == count ? i : i + 1] - path[row == 0 ? 0 : i - 1]);
        Vec out = Unit(Cross(along, {0, 0, 1}));
        if (Dot(out, path[i] - Vec{0, 0, height}) < 0)
            out = out * -1.0;
        const double thin = std::min(1.0, std::min<double>(row, count - 1 - row) / 3.0 + 0.15);
        const double angle = 2 * pi * k / 14;
        const double outward = 0.045 * std::cos(angle);
        const double up = tall * std::copysign(std::pow(std::abs(std::sin(angle)), 0.7), std::sin(angle));
        return path[i] + out * (outward * thin) + Vec{0, 0, up * thin};
    });
    for (std::size_t i = 0; i < mesh.vertices.size(); ++i) {
        const Vec& onPath = path[i / 15];
        if (Dot(mesh.vertices[i].normal, mesh.vertices[i].at - onPath) < 0)
            mesh.vertices[i].normal = mesh.vertices[i].normal * -1.0;
    }
    return mesh;
}

Mesh Box(const Vec& low, const Vec& high, Finish finish)
{
    Mesh mesh;
    mesh.finish = finish;
    const Vec middle = Mix(low, high, 0.5);
    // The corners as bits: 1 for high x, 2 for high y, 4 for high z.
    constexpr int faces[6][4] = {{0, 1, 5, 4}, {2, 3, 7, 6}, {0, 2, 6, 4},
                                 {1, 3, 7, 5}, {4, 5, 7, 6}, {0, 1, 3, 2}};
    const auto corner = [&](int bits) {
        return Vec{bits & 1 ? high.x : low.x, bits & 2 ? high.y : low.y, bits & 4 ? high.z : low.z};
    };
    for (const auto& face : faces)
        AddGrid(mesh, {{corner(face[0]), corner(face[1])}, {corner(face[3]), corner(face[2])}}, middle);
    return mesh;
}

void AddWing(const CarShape& c, std::vector<Mesh>& parts)
{
    const double x = c.length - 0.16 - c.length / 2;
    const double deck = c.centre(c.length - 0.2);
    const double reach = c.halfWidth(c.length - 0.2) - 0.12;
    parts.push_back(Lofted(Finish::Paint, 41, 13, {x, 0, deck + 0.13}, [&](int row, int k) {
        const double t = (row - 20) / 20.0;
        const double drop = 0.09 * std::pow(std::abs(t), 8.0);
        const double angle = 2 * pi * k / 12;
        return Vec{x + 0.12 * std::cos(angle) - 0.05 * t * t, reach * t,
                   deck + 0.135 + 0.018 * std::sin(angle) + 0.03 * std::cos(angle) - drop};
    }));
    for (const double side : {-1.0, 1.0})
        parts.push_back(
            Ellipsoid({x + 0.01, side * reach * 0.93, deck + 0.05}, {0.10, 0.025, 0.10}, Finish::Paint));
}

/// The number plates stand before the bumpers; the sheets of front and rear carry their lettering.
void AddPlates(const CarShape& c, std::vector<Mesh>& parts)
{
    if (c.bumper == Bumper::Hidden)
        return;
    const double stand = c.bumper == Bumper::RubberStrip ? 0.125 : 0.10;
    for (const bool front : {true, false}) {
        const double z = front ? c.bumperHeight : c.bumperHeight - 0.045;
        const double x =
            front ? -c.length / 2 + c.noseSetBack(z) - stand : c.length / 2 - c.tailSetBack(z) + stand;
        Mesh plate;
        AddGrid(
            plate,
            {{{x, -0.17, z - 0.066}, {x, 0.17, z - 0.066}}, {{x, -0.17, z + 0.066}, {x, 0.17, z + 0.066}}},
            {0, 0, z});
        parts.push_back(plate);
    }
}

void AddInterior(const CarShape& c, std::vector<Mesh>& parts)
{
    const double half = c.length / 2;
    const double belt = BeltAt(c, 2.4);
    const double roof = c.roof((c.header + c.rearHeader) / 2);
    const double seat = c.header + 0.55 - half;
    for (const double side : {-0.36, 0.36}) {
        parts.push_back(Ellipsoid({seat, side, belt - 0.05}, {0.10, 0.23, 0.28}, Finish::Cloth));
        parts.push_back(Ellipsoid({seat + 0.06, side, std::min(belt + 0.27, roof - 0.13)},
                                  {0.05, 0.12, 0.085}, Finish::Cloth));
    }
    parts.push_back(Ellipsoid({seat + 0.8, 0, belt - 0.1}, {0.12, 0.55, 0.20}, Finish::Cloth));
    parts.push_back(Ellipsoid({c.cowl + 0.38 - half, 0, belt - 0.045}, {0.26, 0.66, 0.07}, Finish::Dark));
    // The steering wheel, on the left.
    const Vec hub{c.cowl + 0.66 - half, -0.36, belt + 0.0};
    parts.push_back(Lofted(Finish::Dark, 29, 9, hub, [&](int i, int k) {
        const double a = 2 * pi * i / 28;
        const double b = 2 * pi * k / 8;
        const Vec out{std::sin(a) * 0.35, std::cos(a), std::sin(a) * 0.93};
        return hub + out * (0.19 + 0.014 * std::cos(b)) + Vec{-0.93, 0, 0.35} * (0.014 * std::sin(b));
    }));
}

} // namespace

void AddWheel(std::vector<Mesh>& parts, const Vec& hub, double radius, double rimRadius, double side,
              double turn)
{
    // From the middle of the face outward over the side wall and the tread to the inner side; the second
    // number is the distance from the wheel's middle plane, positive toward the viewer of the face.
    const std::vector<std::pair<double, double>> profile{{0.004, 0.088},
                                                         {0.03, 0.088},
                                                         {0.06, 0.082},
                                                         {0.10, 0.068},
                                                         {rimRadius * 0.70, 0.052},
                                                         {rimRadius * 0.86, 0.060},
                                                         {rimRadius * 0.93, 0.085},
                                                         {rimRadius * 0.965, 0.100},
                                                         {rimRadius, 0.104},
                                                         {rimRadius + 0.006, 0.098},
                                                         {rimRadius + 0.02, 0.106},
                                                         {Mix(rimRadius, radius, 0.5), 0.116},
                                                         {Mix(rimRadius, radius, 0.8), 0.110},
                                                         {radius - 0.012, 0.098},
                                                         {radius - 0.002, 0.084},
                                                         {radius, 0.05},
                                                         {radius, 0.0},
                                                         {radius, -0.06},
                                                         {radius - 0.02, -0.10},
                                                         {rimRadius, -0.10},
                                                         {0.05, -0.09}};
    const int points = 57;
    Mesh wheel = Lofted(Finish::Wheel, static_cast<int>(profile.size()), points, hub, [&](int row, int k) {
        const auto& [r, out] = profile[static_cast<std::size_t>(row)];
        const double a = 2 * pi * k / (points - 1);
        return hub + Vec{r * std::cos(a), side * out, r * std::sin(a)};
    });
    wheel.centre = hub;
    wheel.turn = turn;
    // The dished part of the face points toward the hub's outside, not away from the hub itself.
    for (std::size_t i = 0; i < std::size_t{9} * 57; ++i) {
        if (wheel.vertices[i].normal.y * side < 0)
            wheel.vertices[i].normal = wheel.vertices[i].normal * -1.0;
    }
    parts.push_back(wheel);
}

double ShoulderHalfWidth(const CarShape& shape, double s)
{
    return shape.halfWidth(s) - shape.shoulderInset;
}

double BeltAt(const CarShape& shape, double s)
{
    return shape.shoulder(s) + 0.01;
}

RoofRail RoofRailAt(const CarShape& shape, double s)
{
    const double belt = BeltAt(shape, s) - 0.04;
    const double roof = std::max(shape.roof(s), belt + 0.01);
    const double foot = ShoulderHalfWidth(shape, s) - 0.035;
    return {foot - shape.tumble * (roof - belt), roof - 0.045};
}

std::vector<Mesh> BuildCar(const CarShape& c)
{
    std::vector<Mesh> parts;
    parts.push_back(Body(c));
    parts.push_back(Cabin(c));
    const double half = c.length / 2;
    const double track = c.halfWidth(c.frontAxle) - 0.115 + c.flare;
    int number = 0;
    for (const double axle : {c.frontAxle, c.rearAxle}) {
        for (const double side : {-1.0, 1.0}) {
            const double turn = 0.35 + 1.1 * number++;
            AddWheel(parts, {axle - half, side * track, c.wheelRadius}, c.wheelRadius, c.rimRadius, side,
                     turn);
        }
    }
    parts.push_back(Box({0.5 - half, -c.halfWidth(1.0) + 0.16, c.bottom(2.0) + 0.02},
                        {c.length - 0.5 - half, c.halfWidth(1.0) - 0.16, c.bottom(2.0) + 0.06},
                        Finish::Dark));
    struct Bar {
        double rear, tall, stand; ///< how much higher the one at the rear sits
        Finish finish;
    };
    // In the order of the bumpers; the last kind has no bar.
    constexpr Bar bars[] = {{0.06, 0.055, 0.03, Finish::Chrome},
                            {0.05, 0.075, 0.04, Finish::Paint},
                            {0.05, 0.065, 0.06, Finish::Rubber}};
    if (c.bumper != Bumper::Hidden) {
        const Bar& bar = bars[static_cast<std::size_t>(c.bumper)];
        parts.push_back(BumperBar(c, true, c.bumperHeight, bar.tall, bar.stand, bar.finish));
        parts.push_back(BumperBar(c, false, c.bumperHeight + bar.rear, bar.tall, bar.stand, bar.finish));
    }
    AddPlates(c, parts);
    AddInterior(c, parts);
    // Mirrors.
    const double mirrorX = c.windowFront + 0.08 - half;
    const double mirrorY = ShoulderHalfWidth(c, c.windowFront) + 0.10;
    for (const double side : {-1.0, 1.0}) {
        parts.push_back(Ellipsoid({mirrorX, side * mirrorY, BeltAt(c, c.windowFront) + 0.085},
                                  {0.05, 0.085, 0.055}, c.chromeTrim ? Finish::Chrome : Finish::Paint));
        parts.push_back(Ellipsoid({mirrorX, side * (mirrorY - 0.07), BeltAt(c, c.windowFront) + 0.04},
                                  {0.02, 0.06, 0.02}, Finish::Dark));
    }
    for (const double side : {-0.45, 0.45}) {
        const double low = c.bottom(c.length) - 0.05;
        parts.push_back(Lofted(Finish::Chrome, 4, 15, {half - 0.05, side, low}, [&](int i, int k) {
            const double a = 2 * pi * k / 14;
            return Vec{half - 0.12 + 0.05 * i, side + 0.03 * std::cos(a), low + 0.03 * std::sin(a)};
        }));
    }
    if (c.wing)
        AddWing(c, parts);
    return parts;
}

} // namespace torvik::sample
