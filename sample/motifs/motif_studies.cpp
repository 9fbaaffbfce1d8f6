#include "sample/car/car_mesh.h"
#include "sample/motifs/close_ups.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/renderer.h"

namespace torvik::sample {

CarShape StudyShape(const PlannedPhoto& photo)
{
    CarShape shape = ShapeOfYear(photo.year);
    shape.flare += 0.02;
    shape.sideScoop = photo.variant % 2 == 0;
    shape.bonnetScoop = true;
    shape.ductTail = true;
    shape.bumper = Bumper::Hidden;
    shape.roof = shape.roof.Raised(-0.05);
    shape.wheel = WheelFace::FiveStar;
    return shape;
}

QImage PaintClay(const PlannedPhoto& photo)
{
    const CarShape shape = StudyShape(photo);
    const CarSkin skin =
        DrawCarSkin(shape, Paint{QString(), QColor(150, 110, 80), 0}, Trim{}, SideOf(photo.view));
    Subject subject{.parts = BuildCar(shape), .shape = &shape, .skin = &skin, .clay = true};
    if (photo.variant % 2 == 0)
        subject.clayColour = {0.46, 0.30, 0.20};
    Scenery scenery = MakeScenery(Place::Studio, SeedOf(photo));
    scenery.light.Prepare();
    scenery.light.shadow = std::make_shared<GroundShadow>(subject.parts, scenery.light.toSun, 0.5, 3);
    const View view = photo.view == View::Wheel ? View::High : photo.view;
    const Camera camera = CameraFor(shape, view, photo.size, SeedOf(photo));
    QImage picture = PaintScenery(scenery, camera, photo.size);
    Render(picture, subject, camera, scenery.light);
    // The gauge bridge with its pointers, behind and beside the model.
    return picture;
}

} // namespace torvik::sample
