#pragma once

#include "sample/geometry/lettering.h"

#include <QPainter>
#include <QStringList>

#include <vector>

namespace torvik::sample {

/// The largest headline, of one to `lines` lines, that fits into the box; its top is the top of the box.
/// Capitals are at most `tallest` pixels high.
QPainterPath FittedHeadline(const QString& text, const QRectF& box, const Type& type, int lines,
                            double tallest, Qt::Alignment alignment);

/// How running text is set.
struct TextLook {
    Type type;
    QColor ink;
    double largest = 27; ///< pixels; smaller where the text needs it
    Qt::Alignment alignment = Qt::AlignJustify;
};

/// Sets paragraphs into columns, one after the other, as large as they fit; returns the size that was used.
double SetColumns(QPainter& painter, const QStringList& paragraphs, const std::vector<QRectF>& columns,
                  const TextLook& look);
/// Equal columns side by side.
std::vector<QRectF> ColumnsIn(const QRectF& box, int count, double gap);

} // namespace torvik::sample
