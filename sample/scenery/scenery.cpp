#include "sample/scenery/scenery.h"

#include "sample/geometry/shapes.h"
#include "sample/geometry/wide_registers.h"
#include "sample/render/film.h"

namespace torvik::sample {

Scenery MakeScenery(Place place, std::uint32_t seed)
{
    // In the order of the places.
    constexpr Scenery (*makers[])(std::uint32_t) = {CoastScenery,  DesertScenery,   CityScenery,
                                                    StripScenery,  ShowroomScenery, SnowScenery,
                                                    AutumnScenery, StudioScenery};
    return makers[static_cast<std::size_t>(place)](seed);
}

Scenery TurnedRound(Scenery scenery)
{
    scenery.light.toSun.x = -scenery.light.toSun.x;
    scenery.light.toSun.y = -scenery.light.toSun.y;
    scenery.backdrop = [backdrop = scenery.backdrop](QPainter& painter, const Camera& camera) {
        const auto turned = [](const Vec& v) { return Vec{-v.x, -v.y, v.z}; };
        Camera other = camera;
        other.eye = turned(camera.eye);
        other.right = turned(camera.right);
        other.up = turned(camera.up);
        other.forward = turned(camera.forward);
        backdrop(painter, other);
    };
    scenery.ground = [ground = scenery.ground](double x, double y, double distance) {
        return ground(-x, -y, distance);
    };
    return scenery;
}

QImage PaintScenery(const Scenery& scenery, const Camera& camera, QSize size)
{
    LetGoOfWideRegisters();
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    const int width = size.width();
    const int height = size.height();
    const int horizon = std::clamp(Floor(camera.HorizonRow()) + 1, 0, height);
    Environment sky = scenery.light;
    sky.bandHeight = 0;
    sky.lamps = nullptr;
    sky.shadow = nullptr;
    // A small picture looks into fewer directions than the sky would be reckoned for.
    if (width * horizon > 50000)
        sky.Prepare();
    // The sky is smooth: every second pixel of every second row is computed, the rest repeats it.
    for (int y = 0; y < horizon; y += 2) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < width; x += 2) {
            Vec way = camera.Ray(x + 1.0, y + 1.0);
            way.z = std::max(way.z, 0.0005);
            const QRgb pixel = PixelOf(Shoulder(sky.Seen(camera.eye, way)));
            line[x] = pixel;
            if (x + 1 < width)
                line[x + 1] = pixel;
        }
        if (y + 1 < height)
            std::copy_n(line, width, reinterpret_cast<QRgb*>(picture.scanLine(y + 1)));
    }
    for (int y = horizon; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const Vec way = camera.Ray(x + 0.5, y + 0.5);
            const double reach = camera.eye.z / std::max(1e-5, -way.z);
            const Vec at = camera.eye + way * reach;
            Rgb colour = scenery.ground(at.x, at.y, reach);
            if (scenery.light.shadow)
                colour = colour * (1.0 - 0.92 * scenery.light.shadow->At(at.x, at.y));
            const double fade = 1.0 - std::exp(-reach / scenery.hazeReach);
            line[x] = PixelOf(Shoulder(Mix(colour, scenery.haze, fade * fade)));
        }
    }
    // The backdrop is out of focus, so half the size is fine enough for it.
    QImage far(size / 2, QImage::Format_ARGB32_Premultiplied);
    far.fill(Qt::transparent);
    SmoothPainter painter(&far);
    painter.setPen(Qt::NoPen);
    scenery.backdrop(painter, camera.Enlarged(0.5));
    painter.end();
    const double scale = std::max(width, height) / 1280.0;
    far = Blurred(far, scenery.backdropBlur * scale / 2);
    QPainter onto(&picture);
    onto.setRenderHint(QPainter::SmoothPixmapTransform);
    onto.drawImage(QRectF(picture.rect()), far);
    onto.end();
    return picture;
}

} // namespace torvik::sample
