#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words of the two tables that name fonts and colours.

namespace torvik::rtf {

namespace {

template <QFont::StyleHint hint>
void SetHint(Interpreter& interpreter, const Argument&)
{
    if (FontEntry* font = interpreter.CurrentFont())
        font->hint = hint;
}

void SetCharset(Interpreter& interpreter, const Argument& argument)
{
    FontEntry* font = interpreter.CurrentFont();
    if (font == nullptr)
        return;
    font->charset = argument.value;
    font->hasCharset = true;
    interpreter.FontChanged();
}

void SetCodePage(Interpreter& interpreter, const Argument& argument)
{
    FontEntry* font = interpreter.CurrentFont();
    if (font == nullptr)
        return;
    font->codePage = argument.value;
    interpreter.FontChanged();
}

constexpr WordEntry fontEntries[] = {
    {"f", [](Interpreter& r, const Argument& a) { r.BeginFont(a.value); }},
    {"froman", SetHint<QFont::Serif>},
    {"fswiss", SetHint<QFont::SansSerif>},
    {"fmodern", SetHint<QFont::Monospace>},
    {"fscript", SetHint<QFont::Cursive>},
    {"fdecor", SetHint<QFont::Decorative>},
    {"fprq",
     [](Interpreter& r, const Argument& a) {
         if (FontEntry* font = r.CurrentFont())
             font->fixedPitch = a.value == 1;
     }},
    {"fcharset", SetCharset},
    {"cpg", SetCodePage},
    {"falt", [](Interpreter& r, const Argument&) { r.EnterAlternativeFont(); }},
    {"fname", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"panose", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"fontemb", [](Interpreter& r, const Argument&) { r.Skip(); }},
};

constexpr WordEntry colorEntries[] = {
    {"red", [](Interpreter& r, const Argument& a) { r.Colors().SetRed(a.value); }},
    {"green", [](Interpreter& r, const Argument& a) { r.Colors().SetGreen(a.value); }},
    {"blue", [](Interpreter& r, const Argument& a) { r.Colors().SetBlue(a.value); }},
};

} // namespace

std::span<const WordEntry> FontWords()
{
    return fontEntries;
}

std::span<const WordEntry> ColorWords()
{
    return colorEntries;
}

} // namespace torvik::rtf
