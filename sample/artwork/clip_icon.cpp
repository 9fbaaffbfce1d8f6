#include "sample/artwork/clip_icon.h"

#include "sample/geometry/lettering.h"
#include "sample/geometry/path_text.h"

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

QPainterPath Disc(const QPointF& middle, double radius)
{
    QPainterPath path;
    path.addEllipse(middle, radius, radius);
    return path;
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

} // namespace torvik::sample
