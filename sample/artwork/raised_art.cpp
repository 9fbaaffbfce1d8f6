#include "sample/artwork/art_maker.h"
#include "sample/artwork/pen_script.h"
#include "sample/car/paints.h"
#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/render/painting_words.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

const QSize plateSize(240, 72);

/// Lacquer as the ground, with the sky in its upper half.
QImage Lacquer(const QColor& paint)
{
    QImage ground(plateSize, QImage::Format_RGB32);
    QPainter painter(&ground);
    const QColor mild = QColor::fromHsv(std::max(0, paint.hue()), paint.saturation() * 6 / 10,
                                        std::clamp(paint.value() * 6 / 10, 44, 104));
    painter.fillRect(ground.rect(), Linear({0, 0}, {0, plateSize.height() * 1.0},
                                           Shades(mild, {{0, 165}, {0.42, 118}, {0.52, -112}, {1, -135}})));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(255, 255, 255, 70), 1));
    painter.drawRect(QRectF(1.5, 1.5, plateSize.width() - 3, plateSize.height() - 3));
    painter.setPen(QPen(QColor(0, 0, 0, 170), 1));
    painter.drawRect(QRectF(0.5, 0.5, plateSize.width() - 1, plateSize.height() - 1));
    return ground;
}

QImage Paper(QSize size)
{
    QImage paper(size, QImage::Format_RGB32);
    paper.fill(Qt::white);
    return paper;
}

QImage Printed(const char* drawing, QSize size)
{
    QImage picture = Paper(size);
    SmoothPainter painter(&picture);
    Script script(drawing);
    TeachPainting(script, painter);
    script.Run();
    return picture;
}

} // namespace

QImage PaintEmblem(const SmallPicture& emblem)
{
    struct Look {
        const char* name;
        QColor middle, rim;
    };
    // In the order of the marques.
    static const Look looks[] = {{"Vollandry", QColor(196, 200, 206), QColor(120, 126, 136)},
                                 {"Harwell", QColor(214, 206, 190), QColor(150, 140, 124)},
                                 {"Prototype", QColor(196, 200, 204), QColor(128, 134, 140)}};
    const Look& look = looks[static_cast<std::size_t>(emblem.marque)];
    const QSize size(200, 124);
    Relief relief(size);
    Script script("emblems");
    TeachRelief(script, relief);
    script.Set(u"marque"_s, QString::fromLatin1(look.name));
    script.Set(u"year"_s, emblem.year);
    script.Run();
    return relief.Over(SoftGround(size, look.middle, look.rim));
}

QImage PaintScript(const SmallPicture& script)
{
    // In the order of the marques.
    const std::pair<QString, QColor> grounds[] = {
        {u"Vollandry"_s, Cycled(PaintsOfYear(script.year), script.year * 3).colour},
        {u"Harwell"_s, QColor(78, 15, 28)},
        {u"Prototype"_s, QColor(120, 104, 82)}};
    const auto& [marque, ground] = grounds[static_cast<std::size_t>(script.marque)];
    Relief relief(plateSize);
    Script drawing("scripts");
    TeachRelief(drawing, relief);
    TeachPen(drawing);
    drawing.Set(u"marque"_s, marque);
    drawing.Set(u"year"_s, script.year);
    drawing.Run();
    return relief.Over(Lacquer(ground));
}

QImage PaintBookletLogo()
{
    const QSize size(560, 160);
    Relief relief(size);
    Script script("booklet_logo");
    TeachRelief(script, relief);
    TeachPen(script);
    script.Run();
    return relief.Over(Paper(size));
}

QImage PaintBookletTitle()
{
    return Printed("booklet_title", {700, 190});
}

QImage PaintPublisherMark()
{
    return Printed("publisher_mark", {420, 130});
}

} // namespace torvik::sample
