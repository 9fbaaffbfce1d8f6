#include "sample/motifs/motifs.h"

#include "sample/motifs/motif_script.h"
#include "sample/photos/photographer.h"
#include "sample/render/film.h"

namespace torvik::sample {

namespace {

QImage PaintCar(const PlannedPhoto& photo)
{
    const CarShape shape = ShapeOf(photo.model, photo.year);
    const std::uint32_t seed = SeedOf(photo);
    return PhotographCar(shape, PaintOf(photo), TrimOf(photo), MakeScenery(photo.place, seed),
                         CameraFor(shape, photo.view, photo.size, seed), photo.size, SideOf(photo.view));
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
