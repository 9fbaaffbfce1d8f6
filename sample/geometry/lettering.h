#pragma once

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QString>

namespace torvik::sample {

/// How printed words are set. The families are those that the project installs for itself.
struct Type {
    QString family = QString::fromLatin1("Liberation Sans");
    bool bold = false;
    bool italic = false;
    double spacing = 100; ///< percent of the usual distance of letters
    double stretch = 1.0; ///< widens the letters themselves
};

/// The words as a shape whose capitals are `height` pixels high; its line of writing is y = 0, its left edge
/// x = 0.
QPainterPath Lettering(const QString& text, double height, const Type& type);
/// The shape moved so that its box has its middle here.
QPainterPath Centred(const QPainterPath& path, const QPointF& middle);
/// The shape and a border of this width all round.
QPainterPath Widened(const QPainterPath& path, double border);
/// A font of that type, `size` pixels high.
QFont FontOf(const Type& type, double size);

} // namespace torvik::sample
