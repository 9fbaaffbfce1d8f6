#pragma once

#include <QString>

namespace torvik::rtf {

/// The formula of an EQ field as a line of text: "1/2" for a fraction, "kanji(kana)" for a word with its
/// reading above it, "√(x)" for a root. `formula` is the instruction without its first word.
QString EquationText(const QString& formula);

} // namespace torvik::rtf
