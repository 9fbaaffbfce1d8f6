#include "sample/render/renderer.h"

#include "sample/geometry/wide_registers.h"
#include "sample/render/film.h"
#include "sample/render/shading.h"

#include <limits>

namespace torvik::sample {

namespace {

struct Corner {
    double x;
    double y;
    double inverse; ///< 1 / depth
    Vec at;
    Vec normal;
};

/// What the foremost surface of a pixel is, before it is shaded.
struct Foremost {
    float inverse = 0;
    std::int32_t part = -1;
    std::array<float, 3> at = {};
    std::array<float, 3> normal = {};
};

std::array<float, 3> Packed(const Vec& v)
{
    return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
}

Vec Unpacked(const std::array<float, 3>& v)
{
    return {static_cast<double>(v[0]), static_cast<double>(v[1]), static_cast<double>(v[2])};
}

struct Light4 {
    float red = 0;
    float green = 0;
    float blue = 0;
    float cover = 0;
};

/// A horizontal part of the picture at twice its size.
class Strip {
public:
    Strip(int left, int width, int top, int rows)
        : left_(left), width_(width), top_(top), rows_(rows), cells_(Count()), light_(Count())
    {}

    int Left() const { return left_; }
    int Right() const { return left_ + width_; }
    int Top() const { return top_; }
    int Bottom() const { return top_ + rows_; }
    Foremost& CellAt(int x, int y) { return cells_[Index(x, y)]; }
    Light4& LightAt(int x, int y) { return light_[Index(x, y)]; }

private:
    std::size_t Count() const { return static_cast<std::size_t>(width_) * static_cast<std::size_t>(rows_); }
    std::size_t Index(int x, int y) const
    {
        return static_cast<std::size_t>(y - top_) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x - left_);
    }

    int left_;
    int width_;
    int top_;
    int rows_;
    std::vector<Foremost> cells_;
    std::vector<Light4> light_;
};

/// Calls `plot(x, y, inverse depth, place, normal)` for each pixel of the strip that the triangle covers and
/// where nothing nearer has been found yet.
template <typename Plot>
void Scan(Strip& strip, const Corner& c0, const Corner& c1, const Corner& c2, const Plot& plot)
{
    const double area = (c1.x - c0.x) * (c2.y - c0.y) - (c2.x - c0.x) * (c1.y - c0.y);
    if (std::abs(area) < 1e-9)
        return;
    const double lowX = std::min({c0.x, c1.x, c2.x});
    const double highX = std::max({c0.x, c1.x, c2.x});
    if (highX < strip.Left() || lowX > strip.Right())
        return;
    const double lowY = std::min({c0.y, c1.y, c2.y});
    const double highY = std::max({c0.y, c1.y, c2.y});
    const int x0 = std::max(strip.Left(), Floor(lowX));
    const int x1 = std::min(strip.Right() - 1, Floor(highX));
    const int y0 = std::max(strip.Top(), Floor(lowY));
    const int y1 = std::min(strip.Bottom() - 1, Floor(highY));
    const double inverseArea = 1.0 / area;
    for (int y = y0; y <= y1; ++y) {
        const double py = y + 0.5;
        for (int x = x0; x <= x1; ++x) {
            const double px = x + 0.5;
            const double a = ((c1.x - px) * (c2.y - py) - (c2.x - px) * (c1.y - py)) * inverseArea;
            const double b = ((c2.x - px) * (c0.y - py) - (c0.x - px) * (c2.y - py)) * inverseArea;
            const double d = 1.0 - a - b;
            if (a < 0 || b < 0 || d < 0)
                continue;
            const double wa = a * c0.inverse;
            const double wb = b * c1.inverse;
            const double wd = d * c2.inverse;
            const double inverse = wa + wb + wd;
            if (inverse <= static_cast<double>(strip.CellAt(x, y).inverse))
                continue;
            const double depth = 1.0 / inverse;
            plot(x, y, inverse, (c0.at * wa + c1.at * wb + c2.at * wd) * depth,
                 (c0.normal * wa + c1.normal * wb + c2.normal * wd) * depth);
        }
    }
}

template <typename Plot>
void ScanPart(Strip& strip, const Mesh& part, const std::vector<Corner>& corners, const Plot& plot)
{
    const double top = strip.Top();
    const double bottom = strip.Bottom();
    for (const auto& t : part.triangles) {
        const Corner& c0 = corners[t[0]];
        const Corner& c1 = corners[t[1]];
        const Corner& c2 = corners[t[2]];
        if ((c0.y < top && c1.y < top && c2.y < top) || (c0.y > bottom && c1.y > bottom && c2.y > bottom))
            continue;
        if (c0.inverse <= 0 || c1.inverse <= 0 || c2.inverse <= 0)
            continue;
        Scan(strip, c0, c1, c2, plot);
    }
}

} // namespace

void Render(QImage& picture, const Subject& subject, const Camera& camera, const Environment& light)
{
    LetGoOfWideRegisters();
    const Camera fine = camera.Enlarged(2.0);
    std::vector<std::vector<Corner>> corners;
    double top = std::numeric_limits<double>::max();
    double bottom = 0;
    double left = std::numeric_limits<double>::max();
    double right = 0;
    for (const Mesh& part : subject.parts) {
        std::vector<Corner> projected;
        projected.reserve(part.vertices.size());
        for (const Vertex& vertex : part.vertices) {
            const Camera::Spot spot = fine.Project(vertex.at);
            projected.push_back(
                {spot.x, spot.y, spot.depth > 0.05 ? 1.0 / spot.depth : -1.0, vertex.at, vertex.normal});
            if (spot.depth > 0.05) {
                top = std::min(top, spot.y);
                bottom = std::max(bottom, spot.y);
                left = std::min(left, spot.x);
                right = std::max(right, spot.x);
            }
        }
        corners.push_back(std::move(projected));
    }
    const int firstRow = std::clamp(Floor(top / 2) - 1, 0, picture.height());
    const int lastRow = std::clamp(Floor(bottom / 2) + 2, 0, picture.height());
    const int firstColumn = std::clamp(Floor(left / 2) - 1, 0, picture.width());
    const int lastColumn = std::clamp(Floor(right / 2) + 2, 0, picture.width());
    const Shader shader(subject, light, camera.eye);

    constexpr int rowsInStrip = 16; // a strip of a photo stays in the processor's cache
    for (int row = firstRow; row < lastRow; row += rowsInStrip) {
        const int rows = std::min(rowsInStrip, lastRow - row);
        Strip strip(firstColumn * 2, (lastColumn - firstColumn) * 2, row * 2, rows * 2);
        for (int y = row; y < row + rows; ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            for (int x = firstColumn; x < lastColumn; ++x) {
                const Rgb c = LinearOfPixel(line[x]);
                const Light4 value{static_cast<float>(c.x), static_cast<float>(c.y), static_cast<float>(c.z),
                                   static_cast<float>(qAlpha(line[x])) / 255.0F};
                for (int k = 0; k < 4; ++k)
                    strip.LightAt(2 * x + (k & 1), 2 * y + (k >> 1)) = value;
            }
        }
        for (std::size_t i = 0; i < subject.parts.size(); ++i) {
            const Mesh& part = subject.parts[i];
            ScanPart(strip, part, corners[i],
                     [&](int x, int y, double inverse, const Vec& at, const Vec& normal) {
                         if (part.finish == Finish::Skin &&
                             (part.mayBeGlass ? shader.IsGlass(at, normal) : shader.IsWheelArch(at)))
                             return;
                         strip.CellAt(x, y) = {static_cast<float>(inverse), static_cast<std::int32_t>(i),
                                               Packed(at), Packed(normal)};
                     });
        }
        const auto shade = [&](int x, int y) {
            const Foremost& cell = strip.CellAt(x, y);
            const Rgb c = shader.Shade(subject.parts[static_cast<std::size_t>(cell.part)], Unpacked(cell.at),
                                       Unpacked(cell.normal));
            return Light4{static_cast<float>(c.x), static_cast<float>(c.y), static_cast<float>(c.z), 1.0F};
        };
        for (int y = strip.Top(); y < strip.Bottom(); y += 2) {
            for (int x = strip.Left(); x < strip.Right(); x += 2) {
                const std::int32_t part = strip.CellAt(x, y).part;
                const bool whole = part >= 0 && strip.CellAt(x + 1, y).part == part &&
                                   strip.CellAt(x, y + 1).part == part &&
                                   strip.CellAt(x + 1, y + 1).part == part;
                if (whole) {
                    // Inside a part two of the four points tell enough.
                    strip.LightAt(x, y) = strip.LightAt(x + 1, y) = shade(x, y);
                    strip.LightAt(x, y + 1) = strip.LightAt(x + 1, y + 1) = shade(x + 1, y + 1);
                    continue;
                }
                for (int k = 0; k < 4; ++k) {
                    if (strip.CellAt(x + (k & 1), y + (k >> 1)).part >= 0)
                        strip.LightAt(x + (k & 1), y + (k >> 1)) = shade(x + (k & 1), y + (k >> 1));
                }
            }
        }
        // Glass lies over what is behind it: first the far panes, then the near ones.
        for (const bool near : {false, true}) {
            for (std::size_t i = 0; i < subject.parts.size(); ++i) {
                const Mesh& part = subject.parts[i];
                if (!part.mayBeGlass)
                    continue;
                ScanPart(
                    strip, part, corners[i], [&](int x, int y, double, const Vec& at, const Vec& normal) {
                        const bool faces = Dot(normal, camera.eye - at) > 0;
                        if (faces != near || !shader.IsGlass(at, normal))
                            return;
                        const Shader::Pane pane = shader.ShadePane(at, faces ? normal : normal * -1.0);
                        Light4& l = strip.LightAt(x, y);
                        l.red = static_cast<float>(l.red * pane.through.x + pane.light.x);
                        l.green = static_cast<float>(l.green * pane.through.y + pane.light.y);
                        l.blue = static_cast<float>(l.blue * pane.through.z + pane.light.z);
                        l.cover =
                            static_cast<float>(1.0 - (1.0 - static_cast<double>(l.cover)) * pane.through.y);
                    });
            }
        }
        for (int y = row; y < row + rows; ++y) {
            auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
            for (int x = firstColumn; x < lastColumn; ++x) {
                bool touched = false;
                Rgb sum;
                double cover = 0;
                for (int k = 0; k < 4; ++k) {
                    const int px = 2 * x + (k & 1);
                    const int py = 2 * y + (k >> 1);
                    const Light4& l = strip.LightAt(px, py);
                    touched = touched || strip.CellAt(px, py).part >= 0 || l.cover > 0;
                    // Highlights are bent down before the mean is taken, so that their edges stay smooth.
                    sum = sum + Shoulder({l.red, l.green, l.blue}) * 0.25;
                    cover += static_cast<double>(l.cover) * 0.25;
                }
                if (touched)
                    line[x] = PixelOf(sum, cover);
            }
        }
    }
}

} // namespace torvik::sample
