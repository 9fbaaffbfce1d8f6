#pragma once

class QTextBlock;
class QTextDocument;
class QTextTable;

namespace torvik {

/// The upper edge of a paragraph, and those of its first and of its last line, from the top of the document;
/// in the layout's pixels.
double TopOf(const QTextBlock& block);
double FirstLineOf(const QTextBlock& block);
double LastLineOf(const QTextBlock& block);
/// Of a table the lowest line, whichever cell it stands in.
double LastLineOf(const QTextTable& table);

/// The page that a place is on, counted from 0.
double PageOf(double place, const QTextDocument& document);

} // namespace torvik
