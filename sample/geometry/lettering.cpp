#include "sample/geometry/lettering.h"

#include <QPainterPathStroker>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// Outlines are taken from letters of this size, so that hinting does not show.
constexpr int outlineSize = 200;

} // namespace

QFont FontOf(const Type& type, double size)
{
    QFont font(type.family);
    font.setBold(type.bold);
    font.setItalic(type.italic);
    font.setLetterSpacing(QFont::PercentageSpacing, type.spacing);
    font.setPixelSize(std::max(1, qRound(size)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QPainterPath Lettering(const QString& text, double height, const Type& type)
{
    const QFont font = FontOf(type, outlineSize);
    QPainterPath capital;
    capital.addText(0, 0, font, u"H"_s);
    QPainterPath path;
    path.addText(0, 0, font, text);
    const double scale = height / capital.boundingRect().height();
    path = QTransform::fromScale(scale * type.stretch, scale).map(path);
    return path.translated(-path.boundingRect().left(), 0);
}

QPainterPath Centred(const QPainterPath& path, const QPointF& middle)
{
    return path.translated(middle - path.boundingRect().center());
}

QPainterPath Widened(const QPainterPath& path, double border)
{
    QPainterPathStroker stroker;
    stroker.setWidth(border * 2);
    stroker.setJoinStyle(Qt::RoundJoin);
    QPainterPath wide = stroker.createStroke(path);
    wide.addPath(path);
    wide.setFillRule(Qt::WindingFill);
    return wide;
}

} // namespace torvik::sample
