#include "sample/motifs/motifs.h"

#include "sample/car/car_mesh.h"
#include "sample/motifs/close_ups.h"
#include "sample/motifs/motif_script.h"
#include "sample/photos/photographer.h"
#include "sample/render/film.h"
#include "sample/render/renderer.h"

namespace torvik::sample {

namespace {

QImage PaintCar(const PlannedPhoto& photo)
{
    const CarShape shape = ShapeOf(photo.model, photo.year);
    const std::uint32_t seed = SeedOf(photo);
    return PhotographCar(shape, PaintOf(photo), TrimOf(photo), MakeScenery(photo.place, seed),
                         CameraFor(shape, photo.view, photo.size, seed), photo.size, SideOf(photo.view));
}

/// A model of clay in the studio.
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
    return picture;
}

} // namespace

QImage TakePhoto(const PlannedPhoto& photo)
{
    // In the order of the motifs; those without a name are not drawings.
    constexpr const char* drawings[] = {nullptr,   "dashboard", "badge",   "engine",     "stamps", "sign",
                                        "diecast", "knife",     "cookies", "board_game", nullptr,  "sketch"};
    const char* drawing = drawings[static_cast<std::size_t>(photo.motif)];
    QImage picture = drawing                      ? PaintMotif(drawing, photo)
                     : photo.motif == Motif::Clay ? PaintClay(photo)
                                                  : PaintCar(photo);
    picture = picture.convertToFormat(QImage::Format_RGB32);
    Develop(picture, photo.year, SeedOf(photo));
    return picture;
}

} // namespace torvik::sample
