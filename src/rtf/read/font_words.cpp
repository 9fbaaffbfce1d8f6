#include "rtf/read/reader.h"
#include "rtf/read/word_table.h"

// Words of the two tables that name fonts and colours.

namespace torvik::rtf {

namespace {

template <QFont::StyleHint hint>
void SetHint(Reader& reader, const Argument&)
{
    if (FontEntry* font = reader.CurrentFont())
        font->hint = hint;
}

void SetCharset(Reader& reader, const Argument& argument)
{
    FontEntry* font = reader.CurrentFont();
    if (font == nullptr)
        return;
    font->charset = argument.value;
    font->hasCharset = true;
    reader.FontChanged();
}

void SetCodePage(Reader& reader, const Argument& argument)
{
    FontEntry* font = reader.CurrentFont();
    if (font == nullptr)
        return;
    font->codePage = argument.value;
    reader.FontChanged();
}

constexpr WordEntry FontEntries[] = {
    {"f", [](Reader& r, const Argument& a) { r.BeginFont(a.value); }},
    {"froman", SetHint<QFont::Serif>},
    {"fswiss", SetHint<QFont::SansSerif>},
    {"fmodern", SetHint<QFont::Monospace>},
    {"fscript", SetHint<QFont::Cursive>},
    {"fdecor", SetHint<QFont::Decorative>},
    {"fprq",
     [](Reader& r, const Argument& a) {
         if (FontEntry* font = r.CurrentFont())
             font->fixedPitch = a.value == 1;
     }},
    {"fcharset", SetCharset},
    {"cpg", SetCodePage},
    {"falt", [](Reader& r, const Argument&) { r.EnterAlternativeFont(); }},
    {"fname", [](Reader& r, const Argument&) { r.Skip(); }},
    {"panose", [](Reader& r, const Argument&) { r.Skip(); }},
    {"fontemb", [](Reader& r, const Argument&) { r.Skip(); }},
};

constexpr WordEntry ColorEntries[] = {
    {"red", [](Reader& r, const Argument& a) { r.Colors().SetRed(a.value); }},
    {"green", [](Reader& r, const Argument& a) { r.Colors().SetGreen(a.value); }},
    {"blue", [](Reader& r, const Argument& a) { r.Colors().SetBlue(a.value); }},
};

} // namespace

std::span<const WordEntry> FontWords()
{
    return FontEntries;
}

std::span<const WordEntry> ColorWords()
{
    return ColorEntries;
}

} // namespace torvik::rtf
