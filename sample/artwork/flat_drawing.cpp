#include "sample/artwork/flat_drawing.h"

#include "sample/car/car_words.h"
#include "sample/geometry/lettering.h"
#include "sample/geometry/shapes.h"
#include "sample/render/painting_words.h"

#include <QPainterPath>
#include <QStringList>

#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr double iconOutline = 1.8;

QColor ColourOf(const QString& word)
{
    const QColor colour(u'#' + word);
    if (!colour.isValid())
        throw std::runtime_error("There is no such colour: " + word.toStdString());
    return colour;
}

QPointF PointOf(const QString& word)
{
    return PathFromText(u'M' + word + u" L"_s + word).elementAt(0);
}

void DrawLine(QPainter& p, const QStringList& words)
{
    if (words.size() < 4)
        throw std::runtime_error("A line of a small picture is too short: " + words.join(u' ').toStdString());
    const QColor colour = ColourOf(words[1]);
    const double size = words[2].toDouble();
    const auto rest = [&](qsizetype from) { return QStringList(words.mid(from)).join(u' '); };
    if (words[0] == "fill"_L1)
        FillOutlined(p, PathFromText(rest(2)), colour, iconOutline);
    else if (words[0] == "disc"_L1)
        FillOutlined(p, Disc(PointOf(words[2]), words[3].toDouble()), colour, iconOutline);
    else if (words[0] == "line"_L1)
        p.strokePath(PathFromText(rest(3)), QPen(colour, size, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    else if (words[0] == "ring"_L1)
        p.strokePath(Disc(PointOf(words[3]), words.value(4).toDouble()), QPen(colour, size));
    else if (words[0] == "text"_L1)
        p.fillPath(Centred(Lettering(rest(4), size * 0.72, {u"Liberation Sans"_s, true}), PointOf(words[3])),
                   colour);
    else
        throw std::runtime_error("A small picture has an unknown line: " + words[0].toStdString());
}

/// Draws what drawings/flat_car.txt describes, the whole car or only its wheel.
void DrawFlat(QPainter& painter, const CarShape& shape, const QColor& paint, const QPointF& foot,
              double scale, const QString& only)
{
    Script script("flat_car");
    TeachPainting(script, painter);
    TeachCar(script, shape);
    script.Set(u"paint"_s, paint);
    script.Set(u"foot"_s, foot);
    script.Set(u"scale"_s, scale);
    script.Set(u"only"_s, only);
    script.Run();
}

} // namespace

void FillOutlined(QPainter& painter, const QPainterPath& shape, const QColor& colour, double outline)
{
    painter.fillPath(shape, colour);
    painter.strokePath(shape, QPen(QColor(26, 24, 26), outline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void DrawIcon(QPainter& painter, const QRectF& box, const QString& lines)
{
    painter.save();
    painter.translate(box.topLeft());
    painter.scale(box.width() / 64, box.height() / 64);
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts))
        DrawLine(painter, line.split(u' ', Qt::SkipEmptyParts));
    painter.restore();
}

void DrawWheel(QPainter& painter, const CarShape& shape, const QPointF& middle, double radius)
{
    DrawFlat(painter, shape, {}, middle, radius, u"wheel"_s);
}

void DrawCarSide(QPainter& painter, const CarShape& shape, const QColor& paint, const QPointF& foot,
                 double scale)
{
    DrawFlat(painter, shape, paint, foot, scale, u"car"_s);
}

} // namespace torvik::sample
