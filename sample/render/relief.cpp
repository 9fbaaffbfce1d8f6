#include "sample/render/relief.h"

#include "sample/geometry/shapes.h"
#include "sample/geometry/wide_registers.h"
#include "sample/render/film.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace torvik::sample {

namespace {

constexpr float farAway = 1e12F;

/// The lower envelope of the parabolas that stand on the values of a line: squares of distances along it.
void TransformLine(const std::vector<float>& from, std::vector<float>& to, std::vector<int>& places,
                   std::vector<float>& bounds, int count)
{
    const auto value = [&](int i) { return from[static_cast<std::size_t>(i)]; };
    const auto place = [&](int k) -> int& { return places[static_cast<std::size_t>(k)]; };
    const auto bound = [&](int k) -> float& { return bounds[static_cast<std::size_t>(k)]; };
    const auto meeting = [&](int a, int b) {
        return ((value(a) + static_cast<float>(a * a)) - (value(b) + static_cast<float>(b * b))) /
               static_cast<float>(2 * (a - b));
    };
    int last = 0;
    place(0) = 0;
    bound(0) = -farAway;
    bound(1) = farAway;
    for (int i = 1; i < count; ++i) {
        float at = meeting(i, place(last));
        while (at <= bound(last))
            at = meeting(i, place(--last));
        place(++last) = i;
        bound(last) = at;
        bound(last + 1) = farAway;
    }
    last = 0;
    for (int i = 0; i < count; ++i) {
        while (bound(last + 1) < static_cast<float>(i))
            ++last;
        const auto step = static_cast<float>(i - place(last));
        to[static_cast<std::size_t>(i)] = step * step + value(place(last));
    }
}

/// What a polished surface mirrors in this direction: a bright sky, a dark skyline and the warm ground below
/// it. `up` is the height of the direction, -1 to 1.
Rgb Mirrored(double up, double aside)
{
    const double skyline = up + 0.03 * std::sin(aside * 5.0);
    if (skyline > 0)
        return Mix(Rgb{1.05, 1.05, 1.05}, Rgb{0.16, 0.22, 0.32}, SmoothStep(0.0, 0.95, skyline));
    return Mix(Rgb{0.012, 0.013, 0.016}, Rgb{0.42, 0.38, 0.33}, SmoothStep(0.0, -0.5, skyline));
}

} // namespace

std::vector<float> DistancesInside(const std::vector<float>& field, QSize size)
{
    const int width = size.width();
    const int height = size.height();
    std::vector<float> squares(field.size());
    std::transform(field.begin(), field.end(), squares.begin(),
                   [](float value) { return value < 0.5F ? 0.0F : farAway / 4; });
    const auto longest = static_cast<std::size_t>(std::max(width, height));
    std::vector<float> from(longest);
    std::vector<float> to(longest);
    std::vector<int> places(longest + 1);
    std::vector<float> bounds(longest + 2);
    const auto run = [&](int count, std::size_t start, std::size_t step) {
        for (int i = 0; i < count; ++i)
            from[static_cast<std::size_t>(i)] = squares[start + static_cast<std::size_t>(i) * step];
        TransformLine(from, to, places, bounds, count);
        for (int i = 0; i < count; ++i)
            squares[start + static_cast<std::size_t>(i) * step] = to[static_cast<std::size_t>(i)];
    };
    for (int x = 0; x < width; ++x)
        run(height, static_cast<std::size_t>(x), static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y)
        run(width, static_cast<std::size_t>(y) * static_cast<std::size_t>(width), 1);
    for (float& square : squares)
        square = std::sqrt(std::min(square, farAway / 4));
    return squares;
}

void Soften(std::vector<float>& field, QSize size, int radius)
{
    if (radius < 1)
        return;
    std::vector<float> line(static_cast<std::size_t>(std::max(size.width(), size.height())));
    const auto run = [&](int count, std::size_t start, std::size_t step) {
        const auto at = [&](int i) {
            return start + static_cast<std::size_t>(std::clamp(i, 0, count - 1)) * step;
        };
        float sum = 0;
        for (int i = -radius; i <= radius; ++i)
            sum += field[at(i)];
        for (int i = 0; i < count; ++i) {
            line[static_cast<std::size_t>(i)] = sum / static_cast<float>(2 * radius + 1);
            sum += field[at(i + radius + 1)] - field[at(i - radius)];
        }
        for (int i = 0; i < count; ++i)
            field[at(i)] = line[static_cast<std::size_t>(i)];
    };
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < size.height(); ++y)
            run(size.width(), static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width()), 1);
        for (int x = 0; x < size.width(); ++x)
            run(size.height(), static_cast<std::size_t>(x), static_cast<std::size_t>(size.width()));
    }
}

Coat Chrome()
{
    return {};
}

Coat Gold()
{
    return {Coat::Kind::Metal, QColor(226, 178, 84), 0, {}};
}

Coat Enamel(const QColor& colour)
{
    return {Coat::Kind::Enamel, colour, 0, {}};
}

Coat Matte(const QColor& colour)
{
    return {Coat::Kind::Matte, colour, 0, {}};
}

Relief::Relief(QSize size)
    : width_(size.width() * fineness), height_(size.height() * fineness),
      heights_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), 0.0F),
      shade_(heights_.size(), 0.0F), coatOf_(heights_.size(), -1)
{}

void Relief::Add(const QPainterPath& shape, const Coat& coat, const Rise& rise)
{
    QImage drawn(width_, height_, QImage::Format_Alpha8);
    drawn.fill(0);
    QPainter painter(&drawn);
    painter.scale(fineness, fineness);
    painter.fillPath(shape, Qt::black);
    painter.end();
    LetGoOfWideRegisters();

    Field mask(heights_.size());
    for (int y = 0; y < height_; ++y) {
        const uchar* line = drawn.constScanLine(y);
        for (int x = 0; x < width_; ++x)
            mask[Index(x, y)] = line[x] > 127 ? 1.0F : 0.0F;
    }
    const QSize fine(width_, height_);
    Field profile = DistancesInside(mask, fine);
    for (float& value : profile) {
        const double inside = Clamp01(static_cast<double>(value) / (rise.edge * fineness));
        value = static_cast<float>(rise.height * fineness * std::sqrt(1.0 - (1.0 - inside) * (1.0 - inside)));
    }
    Soften(profile, fine, std::max(1, Floor(rise.edge * fineness / 5)));
    if (rise.lift > 0) {
        Field shadow(mask.size(), 0.0F);
        const int down = Floor(rise.lift * fineness * 0.9);
        for (int y = down; y < height_; ++y) {
            for (int x = down; x < width_; ++x)
                shadow[Index(x, y)] = mask[Index(x - down, y - down)];
        }
        Soften(shadow, fine, std::max(1, Floor(rise.lift * fineness * 0.45)));
        for (std::size_t i = 0; i < shade_.size(); ++i)
            shade_[i] = std::max(shade_[i], shadow[i] * 0.72F);
    }
    const auto number = static_cast<std::int16_t>(coats_.size());
    coats_.push_back(coat);
    for (std::size_t i = 0; i < mask.size(); ++i) {
        if (mask[i] < 0.5F)
            continue;
        heights_[i] = static_cast<float>(rise.foot * fineness) + profile[i];
        shade_[i] = 0;
        coatOf_[i] = number;
    }
}

float Relief::HeightAt(int x, int y) const
{
    return heights_[Index(std::clamp(x, 0, width_ - 1), std::clamp(y, 0, height_ - 1))];
}

Rgb Relief::ColourAt(int x, int y) const
{
    const Coat& coat = coats_[static_cast<std::size_t>(coatOf_[Index(x, y)])];
    // Steps between shapes are walls, not slopes: what is too steep is bent back.
    const auto slope = [](float rise) { return std::clamp(static_cast<double>(rise) / 2.0, -1.6, 1.6); };
    const Vec normal = Unit({-slope(HeightAt(x + 1, y) - HeightAt(x - 1, y)),
                             slope(HeightAt(x, y + 1) - HeightAt(x, y - 1)), 1.0});
    const Vec mirror = normal * (2.0 * normal.z) - Vec{0, 0, 1};
    const double across = static_cast<double>(x) / width_;
    const double down = static_cast<double>(y) / height_;
    // Flat faces are a little bowed, so that they run from sky to skyline instead of being one grey.
    const double up = mirror.y + (0.86 - down) * 0.8;
    const Rgb seen = Mirrored(std::clamp(up, -1.0, 1.0), across * 2 + mirror.x);
    const Vec toLight = Unit({-0.45, 0.62, 0.65});
    const double lamp = std::pow(std::max(0.0, Dot(mirror, toLight)), 26.0);
    const Rgb base = LinearOfPixel(coat.colour.rgb());
    const double facing = std::max(0.0, Dot(normal, toLight));
    switch (coat.kind) {
    case Coat::Kind::Metal:
        return base * (seen * 1.05 + Rgb{1, 1, 1} * (0.9 * lamp));
    case Coat::Kind::Enamel: {
        double light = 0.45 + 0.95 * facing;
        if (coat.rays > 0) {
            const double angle = std::atan2(y - coat.rayFrom.y() * fineness, x - coat.rayFrom.x() * fineness);
            light *= 1.0 + 0.28 * std::sin(angle * coat.rays);
        }
        const double rim = 0.05 + 0.5 * std::pow(1.0 - normal.z, 2.0);
        const double gloss = 0.16 * SmoothStep(0.62, 0.12, down + 0.25 * across);
        return base * light + seen * rim + Rgb{1, 1, 1} * (0.8 * lamp + gloss * (0.3 + base.x * 0.3));
    }
    case Coat::Kind::Matte:
        break;
    }
    return base * (0.35 + 0.95 * facing) + Rgb{1, 1, 1} * (0.05 * lamp);
}

QImage Relief::Over(const QImage& ground) const
{
    LetGoOfWideRegisters();
    QImage picture = ground.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const Rgb below = LinearOfPixel(line[x]);
            Rgb sum;
            for (int k = 0; k < fineness * fineness; ++k) {
                const int fx = x * fineness + k % fineness;
                const int fy = y * fineness + k / fineness;
                const Rgb own = coatOf_[Index(fx, fy)] < 0 ? below : Shoulder(ColourAt(fx, fy));
                sum = sum + own * (1.0 - static_cast<double>(shade_[Index(fx, fy)]));
            }
            line[x] = PixelOf(sum * (1.0 / (fineness * fineness)));
        }
    }
    return picture;
}

QImage SoftGround(QSize size, const QColor& middle, const QColor& rim)
{
    QImage ground(size, QImage::Format_RGB32);
    QPainter painter(&ground);
    const QRectF all(QPointF(0, 0), QSizeF(size));
    painter.fillRect(all, Radial({size.width() * 0.42, size.height() * 0.38}, size.width() * 0.66,
                                 {{0, middle}, {1, rim}}));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(255, 255, 255, 60), 1));
    painter.drawRect(all.adjusted(1.5, 1.5, -1.5, -1.5));
    painter.setPen(QPen(QColor(0, 0, 0, 160), 1));
    painter.drawRect(all.adjusted(0.5, 0.5, -0.5, -0.5));
    return ground;
}

} // namespace torvik::sample
