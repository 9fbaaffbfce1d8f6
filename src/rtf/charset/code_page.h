#pragma once

#include <QString>

#include <string_view>

namespace torvik::rtf {

/// The character set of a font whose places hold symbols (see symbol_font.h).
inline constexpr int symbolCharset = 2;

/// The characters of single bytes or pairs of bytes.
class CodePage {
public:
    enum class Kind { SingleByte, MultiByte, Symbol };

    /// The code page with a number as rich text writes it (1252, 437, 932, 10000, 65001, ...). An unknown
    /// number is the western one, 1252. The object lives as long as the program.
    static const CodePage& Of(int number);
    /// The code page of a font's character set (0 western, 204 Cyrillic, 128 Japanese, ...);
    /// 0 when the set names none and the document's own holds.
    static int NumberForCharset(int charset);
    /// The page of symbol fonts: a byte stays what it is, until the font's own table is asked.
    static const CodePage& OfSymbols();

    Kind PageKind() const { return kind_; }
    /// Whether a byte is the first half of a pair.
    bool IsLead(char byte) const;
    /// Appends the characters of `bytes` to `text`; bytes without a meaning become U+FFFD.
    void Decode(std::string_view bytes, QString& text) const;

    CodePage(const CodePage&) = delete;
    CodePage& operator=(const CodePage&) = delete;

private:
    CodePage(const char* name, Kind kind);

    const char* name_;
    Kind kind_;
    char16_t table_[256];
};

} // namespace torvik::rtf
