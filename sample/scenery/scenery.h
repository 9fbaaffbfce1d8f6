#pragma once

#include "sample/geometry/camera.h"
#include "sample/render/environment.h"

#include <QImage>
#include <QPainter>

namespace torvik::sample {

enum class Place { Coast, Desert, City, Strip, Showroom, Snow, Autumn, Studio };

/// A place: its light, what stands far off and what lies on the ground.
struct Scenery {
    Environment light;
    /// Draws what stands above the ground.
    std::function<void(QPainter& painter, const Camera& camera)> backdrop;
    /// The colour of the ground at a place; `distance` metres from the camera.
    std::function<Rgb(double x, double y, double distance)> ground;
    Rgb haze = {0.75, 0.8, 0.85}; ///< what distance fades to
    double hazeReach = 400;       ///< metres after which little else is seen
    double backdropBlur = 2.5;    ///< pixels on a picture 1280 wide
    double floorShine = 0;        ///< how much a wet or polished ground mirrors
    double shadowStrength = 0.7;
    bool night = false;
};

Scenery MakeScenery(Place place, std::uint32_t seed);

Scenery CoastScenery(std::uint32_t seed);
Scenery DesertScenery(std::uint32_t seed);
Scenery CityScenery(std::uint32_t seed);
Scenery StripScenery(std::uint32_t seed);
Scenery ShowroomScenery(std::uint32_t seed);
Scenery SnowScenery(std::uint32_t seed);
Scenery AutumnScenery(std::uint32_t seed);
Scenery StudioScenery(std::uint32_t seed);

/// The same place for a camera on the other side of the car (at positive y), which sees what lay behind the
/// first one.
Scenery TurnedRound(Scenery scenery);

/// Sky, backdrop and ground as the camera sees them, without the car; the shadow of `scenery.light` lies on
/// the ground.
QImage PaintScenery(const Scenery& scenery, const Camera& camera, QSize size);

} // namespace torvik::sample
