#pragma once

#include <QStringList>
#include <QStringView>

class QFont;

namespace torvik {

/// Whether a text has no characters but those that fonts for paper hold. Others are to be printed in the
/// font's own families: the first family decides which font stands in where it has not got a script.
bool AreInPaperFonts(QStringView text);

/// The families that print a text as the font shows it, but faster: first one with a slim copy of the font's
/// face, made when it is first asked for and kept, then the font's own. These alone where no copy can be
/// made.
QStringList PaperFamilies(const QFont& font);

} // namespace torvik
