#include "sample/documents/drawings.h"

#include "sample/car/car_words.h"
#include "sample/car/paints.h"
#include "sample/geometry/shapes.h"
#include "sample/render/painting_words.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr double pixelsWide = 440;
const QColor drawingInk(40, 38, 44);

/// Colours between two, both included, are all that smooth edges need.
void AddMixtures(QList<QRgb>& table, const QColor& from, const QColor& to, int count)
{
    for (int i = 0; i < count; ++i) {
        const double share = count == 1 ? 0 : double(i) / (count - 1);
        const auto mixed = [share](int a, int b) {
            return static_cast<int>(std::lround(a + (b - a) * share));
        };
        table.append(qRgb(mixed(from.red(), to.red()), mixed(from.green(), to.green()),
                          mixed(from.blue(), to.blue())));
    }
}

QImage Reduced(const QImage& picture, const QColor& body)
{
    QList<QRgb> table;
    AddMixtures(table, Qt::white, drawingInk, 6);
    AddMixtures(table, body, Qt::white, 5);
    AddMixtures(table, body, drawingInk, 5);
    return picture.convertToFormat(QImage::Format_Indexed8, table, Qt::ThresholdDither | Qt::AvoidDither);
}

Drawing Placed(const QImage& picture, const QColor& body, int width)
{
    return {.image = Reduced(picture, body),
            .width = width,
            .height = width * picture.height() / picture.width()};
}

Drawing SideOf(const CarShape& shape, const QColor& body, int width)
{
    const double metres = shape.length + 0.3;
    const double scale = pixelsWide / metres;
    QImage picture(static_cast<int>(pixelsWide), static_cast<int>(1.5 * scale), QImage::Format_RGB32);
    picture.fill(Qt::white);
    {
        SmoothPainter painter(&picture);
        painter.translate(0.15 * scale, picture.height() - 4);
        painter.scale(scale, -scale);
        Script script("car_from_side");
        TeachPainting(script, painter);
        TeachCar(script, shape);
        script.Set(u"body"_s, body);
        script.Run();
    }
    return Placed(picture, body, width);
}

} // namespace

Drawing CarDrawing(int year, int width)
{
    // A dark paint would swallow the lines.
    const std::vector<Paint>& paints = PaintsOfYear(year);
    const auto at = [&](std::size_t i) {
        return paints.at((static_cast<std::size_t>(year) + i) % paints.size()).colour;
    };
    std::size_t i = 0;
    while (i < paints.size() && (at(i).lightness() < 80 || at(i).lightness() > 235))
        ++i;
    return SideOf(ShapeOfYear(year), at(i), width);
}

Drawing EngineDrawing(const QString& layout, int width)
{
    const QColor cover(52, 92, 150);
    QImage picture(300, 260, QImage::Format_RGB32);
    picture.fill(Qt::white);
    {
        SmoothPainter painter(&picture);
        Script script("engine_from_front");
        TeachPainting(script, painter);
        script.Set(u"layout"_s, layout);
        script.Set(u"vee"_s, layout.startsWith(u'v'));
        script.Run();
    }
    return Placed(picture, cover, width);
}

Drawing DrawingNamed(const QString& kind, const QString& name, int width)
{
    struct Named {
        const char* name;
        Model model;
        int year;
        QRgb colour;
    };
    constexpr Named cars[] = {{"harwell", Model::Harwell, 1967, 0x6E2836},
                              {"kestra1", Model::KestraOne, 1970, 0xE6B40E},
                              {"kestra3", Model::KestraThree, 1986, 0x5A5C60},
                              {"super", Model::SuperStallion, 2001, 0xA6ABB0}};
    const int year = name.toInt();
    if (kind == u"engine")
        return EngineDrawing(name, width);
    if (kind == u"car" && year >= 1967 && year <= 2001)
        return CarDrawing(year, width);
    for (const Named& car : cars) {
        if (kind == u"car" && name == QLatin1String(car.name))
            return SideOf(ShapeOf(car.model, car.year), QColor(car.colour), width);
    }
    throw std::runtime_error("There is no drawing of " + name.toStdString());
}

} // namespace torvik::sample
