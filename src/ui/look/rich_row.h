#pragma once

#include "runtime/text_range.h"

#include <QList>
#include <QRectF>
#include <QString>

class QFont;
class QPainter;

namespace torvik {

/// The height in pixels of a row of two lines.
int RichRowHeight(const QFont& font);

/// Draws the first line of such a row: a title and, faded at the right end, where it belongs. What there is
/// no room for is cut off with an ellipsis.
void DrawRowTitle(QPainter& painter, const QRectF& area, const QString& title, const QString& place,
                  bool selected);

/// Draws the second line: a text of which some pieces are bold.
void DrawRowLine(QPainter& painter, const QRectF& area, const QString& text, const QList<TextRange>& bold,
                 bool selected);

} // namespace torvik
