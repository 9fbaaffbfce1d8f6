#include "sample/render/distance.h"

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

} // namespace torvik::sample
