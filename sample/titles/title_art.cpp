#include "sample/titles/title_art.h"

#include "sample/car/car_mesh.h"
#include "sample/car/paints.h"
#include "sample/geometry/noise.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/film.h"
#include "sample/render/renderer.h"
#include "sample/scenery/place_script.h"
#include "sample/titles/title_script.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

Scenery Evening(std::uint32_t seed)
{
    return PlaceFrom("evening_light", seed, CoastScenery(seed));
}

/// Adds a further car to a picture: its shadow on the ground, then itself.
void AddCar(QImage& picture, const CarShape& shape, const Paint& paint, const Trim& trim, double angle,
            const Vec& at, const Camera& camera, const Environment& light, CarSide side)
{
    // The renderer knows only a car at the origin, so the camera and the light go round it instead.
    const auto turned = [angle](const Vec& v) {
        const double c = std::cos(-angle);
        const double s = std::sin(-angle);
        return Vec{c * v.x - s * v.y, s * v.x + c * v.y, v.z};
    };
    Camera own = camera;
    own.eye = turned(camera.eye - at);
    own.right = turned(camera.right);
    own.up = turned(camera.up);
    own.forward = turned(camera.forward);
    Environment around = light;
    around.toSun = turned(light.toSun);
    const CarSkin skin = DrawCarSkin(shape, paint, trim, side, SharpnessFor(shape, own, picture.size()));
    const Subject subject{.parts = BuildCar(shape), .shape = &shape, .skin = &skin};
    around.Prepare();
    around.shadow = std::make_shared<GroundShadow>(subject.parts, around.toSun, 0.35, 3);
    const int horizon = std::clamp(Floor(camera.HorizonRow()) + 1, 0, picture.height());
    for (int y = horizon; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const Vec way = own.Ray(x + 0.5, y + 0.5);
            const Vec hit = own.eye + way * (own.eye.z / std::max(1e-5, -way.z));
            const double dark = around.shadow->At(hit.x, hit.y);
            if (dark > 0.004) {
                const double keep = std::pow(1.0 - 0.92 * dark, 1.0 / 2.2);
                line[x] =
                    qRgb(static_cast<int>(qRed(line[x]) * keep), static_cast<int>(qGreen(line[x]) * keep),
                         static_cast<int>(qBlue(line[x]) * keep));
            }
        }
    }
    Render(picture, subject, own, around);
}

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

QImage PaintOpening(QSize size)
{
    const Camera camera = LookAt({-7.6, -9.6, 1.9}, {1.2, 0.6, 1.30}, 40, size);
    const Scenery scenery = Evening(11);
    QImage picture = PaintScenery(scenery, camera, size);
    struct Guest {
        int year;
        int paint;
        double x;
        double y;
        double angle;
    };
    // The farthest first.
    static const Guest guests[] = {{1993, 0, 9.4, 1.9, 0.22},    {1984, 3, 5.6, 1.6, 0.16},
                                   {1975, 0, 1.9, 1.7, 0.10},    {1971, 4, -1.6, 1.3, 0.02},
                                   {1967, 0, -1.2, -1.9, -0.08}, {1999, 3, 4.6, -1.9, 0.10}};
    for (const Guest& guest : guests) {
        const Trim trim{.plate = QString::number(guest.year), .script = u"Vollandry"_s, .lampsLit = true};
        const auto& card = PaintsOfYear(guest.year);
        AddCar(picture, ShapeOfYear(guest.year), Cycled(card, guest.paint), trim, guest.angle,
               {guest.x, guest.y, 0}, camera, scenery.light, CarSide::Left);
    }
    picture = picture.convertToFormat(QImage::Format_RGB32);
    Develop(picture, 2001, 4711);
    PaintTitle(picture, "titles", "opening");
    return picture;
}

QImage PaintSplash(int factor)
{
    const QSize size(600 * factor, 400 * factor);
    const Camera camera = LookAt({-6.2, -5.6, 1.05}, {0.15, 0.2, 1.12}, 44, size);
    const CarShape shape = ShapeOfYear(1967);
    const Trim trim{.plate = u"2001"_s, .script = u"Vollandry"_s, .lampsLit = true};
    QImage picture =
        PhotographCar(shape, PaintsOfYear(1967)[0], trim, Evening(11), camera, size, CarSide::Left);
    PaintTitle(picture, "titles", "splash");
    return picture;
}

QImage PaintIcon(int size)
{
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const Trim trim{.plate = u"2001"_s};
    const Paint silver{QString(), QColor(206, 210, 216), 0.9};
    const QImage car =
        CutOutCar(ShapeOfYear(1967), silver, trim, View::FrontLeft, QSize(size * 2, size * 6 / 5));
    PaintTitle(picture, "titles", "icon", [&](Script& script) { script.Set(u"car"_s, car); });
    return picture;
}

QImage PaintSlideShow(QSize size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    PaintTitle(picture, "titles", "slideShow", [](Script& script) { script.Teach("photo", PhotoOf); });
    return picture.convertToFormat(QImage::Format_RGB32);
}

} // namespace torvik::sample
