#pragma once

#include <QByteArray>
#include <QChar>
#include <QString>

class QRawFont;

namespace torvik {

/// Whether slim fonts hold a character where the font itself does: the letters of Europe, signs and symbols.
bool IsInSlimFonts(QChar character);

/// A font file with the outlines, measures and ligatures of a TrueType font, under a family name of its own,
/// without what paper does not need: the programs that fit letters to pixels, and the characters that are not
/// in slim fonts. Letters look and measure the same without hinting, and embedding them takes a third of the
/// time. Empty for a font of another kind, and for one that is damaged or very large.
QByteArray SlimFont(const QRawFont& font, const QString& family);

} // namespace torvik
