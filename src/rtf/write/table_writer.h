#pragma once

#include <QTextCursor>

class QTextTable;

namespace torvik::rtf {

struct Table;
struct WritingContext;

/// Inserts a table at the cursor, with all that is in its cells. nullptr, with nothing written, when the
/// document may not grow by so much.
QTextTable* WriteTable(WritingContext& context, const QTextCursor& where, const Table& table);

} // namespace torvik::rtf
