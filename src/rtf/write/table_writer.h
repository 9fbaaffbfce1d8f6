#pragma once

#include <QTextCursor>

namespace torvik::rtf {

struct Table;
struct WritingContext;

/// Inserts a table at the cursor, with all that is in its cells. Returns the position after it, or -1
/// with nothing written when the document may not grow by so much.
int WriteTable(WritingContext& context, const QTextCursor& where, const Table& table);

} // namespace torvik::rtf
