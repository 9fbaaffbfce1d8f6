#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words of the table of fonts.

namespace torvik::rtf {

namespace {

template <QFont::StyleHint hint>
void SetHint(Interpreter& interpreter, const Argument&)
{
    if (FontEntry* font = interpreter.Fonts().Entry())
        font->hint = hint;
}

void SetCharset(Interpreter& interpreter, const Argument& argument)
{
    FontEntry* font = interpreter.Fonts().Entry();
    if (font == nullptr)
        return;
    font->charset = argument.value;
    font->hasCharset = true;
    interpreter.Fonts().TakeCodePage();
}

void SetCodePage(Interpreter& interpreter, const Argument& argument)
{
    FontEntry* font = interpreter.Fonts().Entry();
    if (font == nullptr)
        return;
    font->codePage = argument.value;
    interpreter.Fonts().TakeCodePage();
}

constexpr WordEntry fontEntries[] = {
    {"f", [](Interpreter& r, const Argument& a) { r.Fonts().BeginEntry(a.value); }},
    {"froman", SetHint<QFont::Serif>},
    {"fswiss", SetHint<QFont::SansSerif>},
    {"fmodern", SetHint<QFont::Monospace>},
    {"fscript", SetHint<QFont::Cursive>},
    {"fdecor", SetHint<QFont::Decorative>},
    {"fprq",
     [](Interpreter& r, const Argument& a) {
         if (FontEntry* font = r.Fonts().Entry())
             font->fixedPitch = a.value == 1;
     }},
    {"fcharset", SetCharset},
    {"cpg", SetCodePage},
    {"falt", [](Interpreter& r, const Argument&) { r.Fonts().BeginAlternative(); }},
    {"fname", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"panose", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"fontemb", [](Interpreter& r, const Argument&) { r.Skip(); }},
};

} // namespace

std::span<const WordEntry> FontWords()
{
    return fontEntries;
}

} // namespace torvik::rtf
