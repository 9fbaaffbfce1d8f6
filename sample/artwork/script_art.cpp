#include "sample/artwork/art_plan.h"
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

} // namespace

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

} // namespace torvik::sample
