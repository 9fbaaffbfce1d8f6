#pragma once

#include "rtf/model/color_table.h"
#include "rtf/model/page_measures.h"
#include "rtf/model/paragraph_state.h"

#include <QTextCursor>

class QTextTable;

namespace torvik::rtf {

/// Whether two paragraphs stand within the same borders when one follows the other.
bool SharesBox(const ParagraphState& a, const ParagraphState& b);

/// Inserts what draws a paragraph's borders, and moves the cursor into it: a table of one cell. A frame of
/// Qt's has the same border all around, and the empty paragraph that comes before it would be seen.
QTextTable* InsertBox(QTextCursor& cursor, const ParagraphState& state, const ColorTable& colors,
                      const PageMeasures& page);

/// Ends a part of the box with the line that stands between its paragraphs, and moves the cursor into the
/// next part, for a paragraph that shares the box. `spaceAbove` is what the paragraph above wants below it,
/// twips.
void PartBox(QTextTable& box, QTextCursor& cursor, const ParagraphState& state, int spaceAbove,
             const ColorTable& colors);

} // namespace torvik::rtf
