#pragma once

#include "sample/geometry/vec.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace torvik::sample {

/// How the points of a mesh get their look.
enum class Finish { Skin, Wheel, Chrome, Rubber, Cloth, Paint, Dark };

struct Vertex {
    Vec at;
    Vec normal;
};

/// Triangles in the world: x from nose (negative) to tail, y to the car's right, z up from the ground;
/// metres.
struct Mesh {
    std::vector<Vertex> vertices;
    std::vector<std::array<std::uint32_t, 3>> triangles;
    Finish finish = Finish::Skin;
    Vec centre;      ///< for wheels: the hub
    double turn = 0; ///< for wheels: how far the face is turned, radians
    bool mayBeGlass = false;
};

/// Joins a grid of points (rows of equal length) to `mesh`, with smooth normals that point away from
/// `inside`.
void AddGrid(Mesh& mesh, const std::vector<std::vector<Vec>>& rows, const Vec& inside);
/// A mesh of `rows` rows of `columns` points each, found one by one.
Mesh Lofted(Finish finish, int rows, int columns, const Vec& inside,
            const std::function<Vec(int row, int column)>& at);
/// A closed ball squeezed to the three radii.
Mesh Ellipsoid(const Vec& centre, const Vec& radii, Finish finish);
/// The upside-down picture that a polished floor shows.
Mesh MirroredInFloor(const Mesh& mesh);
/// The mesh turned about the z axis by `angle` radians and then moved.
Mesh Placed(const Mesh& mesh, double angle, const Vec& offset);

} // namespace torvik::sample
