#pragma once

#include <QString>

namespace torvik::rtf {

/// The Unicode character that a symbol font shows at a place of its own table.
/// `family` is the font's name ("Symbol", "Wingdings", ...); `unit` the byte, or the byte plus U+F000 as
/// Unicode writers put it. A character without a counterpart comes back unchanged.
char16_t SymbolCharacter(const QString& family, char16_t unit);

} // namespace torvik::rtf
