#include "sample/motifs/motifs.h"
#include "sample/titles/title_art.h"
#include "sample/titles/title_script.h"

namespace torvik::sample {

namespace {

/// A photo of the disc by its prefix and number, taken in another size.
Value PhotoOf(const Arguments& a)
{
    const std::vector<PlannedPhoto> photos = PlanPhotos();
    auto found = std::find_if(photos.begin(), photos.end(), [&](const PlannedPhoto& photo) {
        return photo.prefix == a.Text(0) && photo.number == a.Whole(1);
    });
    PlannedPhoto photo = *found;
    photo.size = QSizeF(a.Point(2).x(), a.Point(2).y()).toSize();
    return TakePhoto(photo);
}

} // namespace

QImage PaintSlideShow(QSize size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    PaintTitle(picture, "titles", "slideShow", [](Script& script) { script.Teach("photo", PhotoOf); });
    return picture.convertToFormat(QImage::Format_RGB32);
}

} // namespace torvik::sample
