#include "sample/photos/photographer.h"

#include "sample/car/car_mesh.h"
#include "sample/geometry/noise.h"
#include "sample/render/film.h"
#include "sample/render/night_lights.h"
#include "sample/render/renderer.h"

namespace torvik::sample {

namespace {

/// The reflection of the car in a polished or wet ground.
void PaintReflection(QImage& picture, const Subject& subject, const Camera& camera, const Environment& light,
                     double share)
{
    // It is blurred anyway: half the size will do.
    QImage mirror(picture.size() / 2, QImage::Format_ARGB32_Premultiplied);
    mirror.fill(Qt::transparent);
    Subject upsideDown = subject;
    for (Mesh& part : upsideDown.parts)
        part = MirroredInFloor(part);
    Render(mirror, upsideDown, camera.Enlarged(0.5), light);
    mirror = Blurred(mirror, 1.6 * std::max(picture.width(), picture.height()) / 1280.0);
    QPainter painter(&picture);
    painter.setOpacity(share);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(picture.rect()), mirror);
}

/// A place round the car: degrees from its nose, metres away and high, the lens, and what is looked at.
struct Orbit {
    double degrees, away, high, lens;
    Vec target;
};

// In the order of the views.
constexpr Orbit orbits[] = {{38, 7.6, 1.45, 50, {0.05, 0.1, 0.72}}, {-40, 7.6, 1.5, 50, {0.05, -0.1, 0.72}},
                            {90, 9.4, 1.15, 58, {0, 0, 0.80}},      {-90, 9.4, 1.15, 58, {0, 0, 0.80}},
                            {142, 7.6, 1.65, 50, {0.0, 0.1, 0.70}}, {-142, 7.6, 1.65, 50, {0.0, -0.1, 0.70}},
                            {46, 8.4, 4.3, 56, {0.0, 0.1, 0.55}},   {28, 6.0, 0.55, 42, {0.0, 0.15, 0.68}},
                            {6, 8.2, 1.1, 62, {0.0, 0.0, 0.72}}};

} // namespace

Sharpness SharpnessFor(const CarShape& shape, const Camera& camera, QSize size)
{
    // Twice as many points as the nearest place of a sheet has pixels; sheets that look away need few.
    const double half = shape.length / 2;
    const auto dense = [&](const Vec& at, bool facing) {
        const double reach = std::max(0.8, Length(camera.eye - at));
        return facing ? std::clamp(camera.focal / reach * 1.5, 60.0, 640.0) : 60.0;
    };
    const double y = camera.eye.y < 0 ? -0.9 : 0.9;
    const Vec near{std::clamp(camera.eye.x, -half, half), y, 0.6};
    Sharpness sharpness;
    sharpness.side = dense(near, std::abs(camera.eye.y) > 0.9);
    sharpness.front = dense({-half, 0, 0.6}, camera.eye.x < -half * 0.4);
    sharpness.rear = dense({half, 0, 0.6}, camera.eye.x > half * 0.4);
    sharpness.top = std::min(330.0, dense(near, true) * 0.8);
    sharpness.wheel = std::min(1150.0, dense(near, true) * 1.6);
    if (std::max(size.width(), size.height()) > 2000)
        sharpness.wheel = 900;
    return sharpness;
}

std::uint32_t SeedOf(const PlannedPhoto& photo)
{
    std::uint32_t seed = 2166136261U;
    for (const QChar ch : photo.file)
        seed = (seed ^ ch.unicode()) * 16777619U;
    return seed & 0xFFFFFU;
}

CarSide SideOf(View view)
{
    return view == View::FrontRight || view == View::SideRight || view == View::RearRight ? CarSide::Right
                                                                                          : CarSide::Left;
}

Camera CameraFor(const CarShape& c, View view, QSize size, std::uint32_t seed)
{
    Random random(seed);
    const double half = c.length / 2;
    switch (view) {
    case View::Wheel:
        return LookAt({c.frontAxle - half - 1.0, -2.6, 0.62}, {c.frontAxle - half + 0.16, -0.8, 0.47}, 58,
                      size);
    case View::Nose:
        return LookAt({-half - 2.1, -1.35, 0.98}, {-half + 0.25, -0.18, 0.60}, 48, size);
    case View::Tail:
        return LookAt({half + 2.2, -1.5, 1.12}, {half - 0.25, -0.15, 0.62}, 46, size);
    default:
        break;
    }
    const Orbit& orbit = orbits[static_cast<std::size_t>(view)];
    const double angle = (orbit.degrees + random.Between(-4, 4)) / 180 * pi;
    const double reach = orbit.away * random.Between(0.96, 1.06) *
                         (size.height() > size.width() ? 1.42 : 1.0) * c.length / 4.65;
    return LookAt(
        {-std::cos(angle) * reach, -std::sin(angle) * reach, orbit.high * random.Between(0.9, 1.12)},
        orbit.target, orbit.lens, size);
}

QImage PhotographCar(const CarShape& shape, const Paint& paint, const Trim& trim, Scenery scenery,
                     const Camera& camera, QSize size, CarSide side)
{
    const CarSkin skin = DrawCarSkin(shape, paint, trim, side, SharpnessFor(shape, camera, size));
    const Subject subject{BuildCar(shape), &shape, &skin};
    if (camera.eye.y > 0)
        scenery = TurnedRound(std::move(scenery));
    scenery.light.Prepare();
    scenery.light.shadow = std::make_shared<GroundShadow>(subject.parts, scenery.light.toSun,
                                                          scenery.shadowStrength, scenery.night ? 3 : 1);
    QImage picture = PaintScenery(scenery, camera, size);
    if (scenery.floorShine > 0)
        PaintReflection(picture, subject, camera, scenery.light, scenery.floorShine);
    if (trim.lampsLit)
        PaintBeams(picture, shape, camera);
    Render(picture, subject, camera, scenery.light);
    if (trim.lampsLit)
        PaintFlares(picture, shape, camera);
    return picture.convertToFormat(QImage::Format_RGB32);
}

QImage CutOutCar(const CarShape& shape, const Paint& paint, const Trim& trim, View view, QSize size)
{
    const Camera camera = CameraFor(shape, view, size, 1);
    const CarSkin skin = DrawCarSkin(shape, paint, trim, SideOf(view), SharpnessFor(shape, camera, size));
    const Subject subject{BuildCar(shape), &shape, &skin};
    Environment light = StudioScenery(7).light;
    light.zenith = {0.55, 0.6, 0.68};
    light.horizon = {0.95, 0.95, 0.95};
    light.ground = {0.35, 0.34, 0.32};
    light.band = {0.16, 0.16, 0.17};
    light.sun = {1.6, 1.5, 1.4};
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    light.Prepare();
    Render(picture, subject, camera, light);
    return picture;
}

} // namespace torvik::sample
