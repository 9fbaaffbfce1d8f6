#include "sample/motifs/motifs.h"

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
    // In the order of the motifs.
    constexpr QImage (*painters[])(const PlannedPhoto&) = {
        PaintCar,     PaintDashboard, PaintBadge,   PaintEngine,    PaintStamps, PaintSign,
        PaintDieCast, PaintKnife,     PaintCookies, PaintBoardGame, PaintClay,   PaintSketch};
    QImage picture =
        painters[static_cast<std::size_t>(photo.motif)](photo).convertToFormat(QImage::Format_RGB32);
    Develop(picture, photo.year, SeedOf(photo));
    return picture;
}

} // namespace torvik::sample
