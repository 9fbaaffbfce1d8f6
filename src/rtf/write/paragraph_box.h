#pragma once

#include "rtf/model/color_table.h"
#include "rtf/model/paragraph_state.h"

#include <QTextCursor>

class QTextFrame;

namespace torvik::rtf {

/// Whether two paragraphs stand within the same borders when one follows the other.
bool SharesBox(const ParagraphState& a, const ParagraphState& b);

/// Inserts what draws a paragraph's borders, and moves the cursor into it. A full box is a frame; borders
/// on single sides are those of a table of one cell, because a frame has the same border all around.
QTextFrame* InsertBox(QTextCursor& cursor, const ParagraphState& state, const ColorTable& colors);

} // namespace torvik::rtf
