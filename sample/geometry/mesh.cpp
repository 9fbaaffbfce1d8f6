#include "sample/geometry/mesh.h"

namespace torvik::sample {

void AddGrid(Mesh& mesh, const std::vector<std::vector<Vec>>& rows, const Vec& inside)
{
    const std::size_t rowCount = rows.size();
    const std::size_t columnCount = rows.front().size();
    const auto base = static_cast<std::uint32_t>(mesh.vertices.size());
    double outward = 0;
    for (std::size_t r = 0; r < rowCount; ++r) {
        for (std::size_t c = 0; c < columnCount; ++c) {
            const Vec& left = rows[r][c == 0 ? 0 : c - 1];
            const Vec& right = rows[r][c + 1 == columnCount ? c : c + 1];
            const Vec& before = rows[r == 0 ? 0 : r - 1][c];
            const Vec& after = rows[r + 1 == rowCount ? r : r + 1][c];
            const Vec normal = Unit(Cross(right - left, after - before));
            outward += Dot(normal, rows[r][c] - inside);
            mesh.vertices.push_back({rows[r][c], normal});
        }
    }
    if (outward < 0) {
        for (std::size_t i = base; i < mesh.vertices.size(); ++i)
            mesh.vertices[i].normal = mesh.vertices[i].normal * -1.0;
    }
    for (std::size_t r = 0; r + 1 < rowCount; ++r) {
        for (std::size_t c = 0; c + 1 < columnCount; ++c) {
            const auto a = base + static_cast<std::uint32_t>(r * columnCount + c);
            const auto b = a + static_cast<std::uint32_t>(columnCount);
            mesh.triangles.push_back({a, a + 1, b});
            mesh.triangles.push_back({a + 1, b + 1, b});
        }
    }
}

Mesh Lofted(Finish finish, int rows, int columns, const Vec& inside,
            const std::function<Vec(int row, int column)>& at)
{
    std::vector<std::vector<Vec>> grid(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            grid[static_cast<std::size_t>(row)].push_back(at(row, column));
    }
    Mesh mesh;
    mesh.finish = finish;
    AddGrid(mesh, grid, inside);
    return mesh;
}

Mesh Ellipsoid(const Vec& centre, const Vec& radii, Finish finish)
{
    return Lofted(finish, 13, 21, centre, [&](int i, int j) {
        const double latitude = -pi / 2 + pi * (i + 0.001) / 12.002;
        const double longitude = 2 * pi * j / 20;
        return centre + Vec{radii.x * std::cos(latitude) * std::cos(longitude),
                            radii.y * std::cos(latitude) * std::sin(longitude), radii.z * std::sin(latitude)};
    });
}

Mesh MirroredInFloor(const Mesh& mesh)
{
    Mesh mirrored = mesh;
    for (Vertex& vertex : mirrored.vertices) {
        vertex.at.z = -vertex.at.z;
        vertex.normal.z = -vertex.normal.z;
    }
    return mirrored;
}

Mesh Placed(const Mesh& mesh, double angle, const Vec& offset)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const auto turned = [c, s](const Vec& v) { return Vec{c * v.x - s * v.y, s * v.x + c * v.y, v.z}; };
    Mesh placed = mesh;
    for (Vertex& vertex : placed.vertices) {
        vertex.at = turned(vertex.at) + offset;
        vertex.normal = turned(vertex.normal);
    }
    return placed;
}

} // namespace torvik::sample
