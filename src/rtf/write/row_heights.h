#pragma once

#include <QTextFormat>

class QTextDocument;

namespace torvik::rtf {

/// In the format of a cell: how high its row is to be at least, pixels. Qt has nothing like it.
inline constexpr int rowHeightProperty = QTextFormat::UserProperty + 2;

/// Gives the rows of all tables the height that they are to have, by room around the text of the
/// highest cell. Columns have fixed widths, so this holds however wide the document is laid out.
void SetRowHeights(QTextDocument& document);

} // namespace torvik::rtf
