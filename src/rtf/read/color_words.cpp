#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words of the table of colours.

namespace torvik::rtf {

namespace {

constexpr WordEntry colorEntries[] = {
    {"red", [](Interpreter& r, const Argument& a) { r.Document().colors.SetRed(a.value); }},
    {"green", [](Interpreter& r, const Argument& a) { r.Document().colors.SetGreen(a.value); }},
    {"blue", [](Interpreter& r, const Argument& a) { r.Document().colors.SetBlue(a.value); }},
};

} // namespace

std::span<const WordEntry> ColorWords()
{
    return colorEntries;
}

} // namespace torvik::rtf
