#pragma once

#include <QTextCursor>

class QTextTable;

namespace torvik::rtf {

struct BoxStyle;

/// Inserts the box of a drawn object at the cursor: a table of one cell, since the empty paragraph that Qt
/// leaves before a frame would be seen.
QTextTable* InsertShapeBox(QTextCursor& cursor, const BoxStyle& style);

} // namespace torvik::rtf
