#pragma once

#include "sample/car/paints.h"
#include "sample/render/renderer.h"
#include "sample/scenery/scenery.h"

namespace torvik::sample {

/// Where the camera is in one moment of a movie. Places are those of the car, which stays at the origin while
/// the world passes under it.
struct Moment {
    Vec eye; ///< at negative y, where the sceneries are meant to be seen from
    Vec target;
    double lens = 40;
    double driven = 0; ///< metres that the car has gone, nose first
};

/// A car in its scenery, made ready once and then drawn in any number of moments.
class Stage {
public:
    Stage(CarShape shape, const Paint& paint, const Trim& trim, Scenery scenery);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// What the camera sees. May be called from several threads at once.
    QImage Draw(const Moment& look, QSize size) const;

private:
    CarShape shape_;
    bool lampsLit_;
    Scenery scenery_;
    CarSkin skin_;
    std::vector<Mesh> parts_;
};

} // namespace torvik::sample
