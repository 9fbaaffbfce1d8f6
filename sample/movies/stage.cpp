#include "sample/movies/stage.h"

#include "sample/car/car_mesh.h"
#include "sample/render/night_lights.h"

#include <utility>

namespace torvik::sample {

Stage::Stage(CarShape shape, const Paint& paint, const Trim& trim, Scenery scenery)
    : shape_(std::move(shape)), lampsLit_(trim.lampsLit), scenery_(std::move(scenery)),
      skin_(DrawCarSkin(shape_, paint, trim, CarSide::Left, {190, 190, 190, 110, 320})),
      parts_(BuildCar(shape_))
{
    scenery_.light.Prepare();
    scenery_.light.shadow =
        std::make_shared<GroundShadow>(parts_, scenery_.light.toSun, scenery_.shadowStrength, 1);
}

QImage Stage::Draw(const Moment& look, QSize size) const
{
    const Camera camera = LookAt(look.eye, look.target, look.lens, size);
    const double driven = look.driven;
    Scenery around = scenery_;
    around.ground = [&](double x, double y, double distance) {
        return scenery_.ground(x - driven, y, distance);
    };
    around.backdrop = [&](QPainter& painter, const Camera& seen) {
        Camera moved = seen;
        moved.eye.x -= driven;
        scenery_.backdrop(painter, moved);
    };
    QImage picture = PaintScenery(around, camera, size);
    Subject subject{.parts = parts_};
    for (Mesh& part : subject.parts) {
        if (part.finish == Finish::Wheel)
            part.turn += driven / shape_.wheelRadius;
    }
    subject.shape = &shape_;
    subject.skin = &skin_;
    if (lampsLit_)
        PaintBeams(picture, shape_, camera);
    Render(picture, subject, camera, scenery_.light);
    if (lampsLit_)
        PaintFlares(picture, shape_, camera);
    return picture.convertToFormat(QImage::Format_RGB32);
}

} // namespace torvik::sample
