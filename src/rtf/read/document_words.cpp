#include "rtf/read/reader.h"
#include "rtf/read/word_table.h"

// Words about the whole document.

namespace torvik::rtf {

namespace {

constexpr int LargestPage = 70000;

constexpr WordEntry Entries[] = {
    {"ansi", [](Reader& r, const Argument&) { r.SetDocumentPage(1252); }},
    {"mac", [](Reader& r, const Argument&) { r.SetDocumentPage(10000); }},
    {"pc", [](Reader& r, const Argument&) { r.SetDocumentPage(437); }},
    {"pca", [](Reader& r, const Argument&) { r.SetDocumentPage(850); }},
    {"ansicpg", [](Reader& r, const Argument& a) { r.SetDocumentPage(a.Within(1, LargestPage, 1252)); }},
    {"deff", [](Reader& r, const Argument& a) { r.SetDefaultFont(a.value); }},
    {"deftab", [](Reader& r, const Argument& a) { r.SetDefaultTab(a.Within(20, 14400, 720)); }},
    {"uc", [](Reader& r, const Argument& a) { r.State().fallbackLength = a.Within(0, 64, 1); }},
    {"u", [](Reader& r, const Argument& a) { r.PutUnicode(a.value); }},
};

} // namespace

std::span<const WordEntry> DocumentWords()
{
    return Entries;
}

} // namespace torvik::rtf
