#pragma once

#include "rtf/charset/code_page.h"

#include <QFont>
#include <QStringList>

#include <unordered_map>

namespace torvik::rtf {

/// One font of a document.
struct FontEntry {
    QString family;
    QString alternative;
    QFont::StyleHint hint = QFont::AnyStyle;
    bool fixedPitch = false;
    bool hasCharset = false;
    int charset = 0;
    int codePage = 0;

    /// Takes the family from a name as the table of fonts gives it. A suffix of it that names a character set
    /// ("Arial CE") holds against what else the table says: a font of that name has these letters only.
    void SetName(const QString& written);
    bool IsSymbolFont() const;
    /// The names to look for, best first; empty for symbol fonts, whose text is translated to Unicode
    /// instead.
    QStringList Families() const;
};

/// The fonts of a document by number.
class FontTable {
public:
    /// The entry with a number, made when there is none yet. Past the limit, all further fonts share one
    /// entry.
    FontEntry& Define(int number);
    /// nullptr when the document defines no such font.
    const FontEntry* Find(int number) const;
    /// What the bytes of text in a font mean; `documentPage` holds where the font says nothing.
    const CodePage& PageOf(int number, int documentPage) const;

private:
    std::unordered_map<int, FontEntry> fonts_;
    FontEntry overflow_;
};

/// A font's name as the table of fonts gives it, without the suffix that only names its character set
/// ("Arial CE", "Times New Roman (Cyrillic)") and without the closing semicolon.
QString CleanFontName(const QString& written);

} // namespace torvik::rtf
