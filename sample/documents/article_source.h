#pragma once

#include "sample/documents/article.h"

namespace torvik::sample {

/// Adds blocks that are written as plain text. The first characters of a line tell its kind:
///   "= " title, "== " heading, "- " bullet, "+ " numbered, "> " quotation, "% " hanging,
///   ">< " centred, ">> " right, ": " parts at the tab stops, "| ", "|= " (heading) and "|+ " (sum)
///   table rows, parts separated by '|';
///   "@tabs 700 6900r." tab stops (r right, c centred, d decimal, '.' a row of dots), "@rule",
///   "= Title {name}" and "== Heading {name}" carry a bookmark, to which [words|#name] leads,
///   "@screen main 5200" the picture screens/main.png,
///   "@table grid|rules|none 1200 900r" column widths, "@drawing car 1969 5200", "@drawing engine v8 3000".
/// Other lines continue the paragraph before them or, after an empty line, begin one. A backslash at the end
/// of a line breaks it. Throws std::runtime_error for a word after '@' that is none of these.
void AddSource(Article& article, const QString& source);

/// A whole article: lines "key: value" (title, dialect, written, accent, body, size, justified), then "---",
/// then the blocks.
RichDocument ArticleOfSource(const QString& source);

} // namespace torvik::sample
