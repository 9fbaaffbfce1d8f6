#include "rtf/bounds/limits.h"
#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words about the whole document.

namespace torvik::rtf {

namespace {

constexpr int largestPage = 70000;

constexpr WordEntry documentEntries[] = {
    {"ansi", [](Interpreter& r, const Argument&) { r.Looks().SetCodePage(1252); }},
    {"mac", [](Interpreter& r, const Argument&) { r.Looks().SetCodePage(10000); }},
    {"pc", [](Interpreter& r, const Argument&) { r.Looks().SetCodePage(437); }},
    {"pca", [](Interpreter& r, const Argument&) { r.Looks().SetCodePage(850); }},
    {"ansicpg",
     [](Interpreter& r, const Argument& a) { r.Looks().SetCodePage(a.Within(1, largestPage, 1252)); }},
    {"deff", [](Interpreter& r, const Argument& a) { r.Looks().SetDefaultFont(a.value); }},
    {"deftab",
     [](Interpreter& r, const Argument& a) { r.Paragraphs().SetDefaultTab(a.Within(20, 14400, 720)); }},
    {"paperw", [](Interpreter& r, const Argument& a) { r.Document().page.width = a.Within(1440, maxTwips); }},
    {"margl", [](Interpreter& r, const Argument& a) { r.Document().page.leftMargin = a.Within(0, 14400); }},
    {"margr", [](Interpreter& r, const Argument& a) { r.Document().page.rightMargin = a.Within(0, 14400); }},
    {"uc", [](Interpreter& r, const Argument& a) { r.Document().group.fallbackLength = a.Within(0, 64, 1); }},
    {"u", [](Interpreter& r, const Argument& a) { r.Text().PutUnicode(a.value); }},
};

} // namespace

std::span<const WordEntry> DocumentWords()
{
    return documentEntries;
}

} // namespace torvik::rtf
