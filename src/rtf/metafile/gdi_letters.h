#pragma once

#include "rtf/metafile/gdi_state.h"

#include <QString>

#include <string_view>

namespace torvik::rtf {

/// Whether a font has a table of its own, whose places hold symbols.
bool ShowsSymbols(const GdiFont& font);
/// The characters that bytes stand for in a font: by its character set, or by its own table where it is one
/// of symbols.
QString GdiLetters(const GdiFont& font, std::string_view bytes);
/// The same for characters of 16 bits.
QString GdiLetters(const GdiFont& font, QString text);

} // namespace torvik::rtf
