#include "rtf/bounds/limits.h"
#include "rtf/read/reader.h"
#include "rtf/read/word_table.h"

// Words about rows and cells.

namespace torvik::rtf {

namespace {

template <Side side>
void SelectCellSide(Reader& reader, const Argument&)
{
    reader.SelectBorder(&reader.CurrentCell().borders[side]);
}

template <Side side>
void SelectRowSide(Reader& reader, const Argument&)
{
    reader.SelectBorder(&reader.CurrentRow().borders[side]);
}

template <Merge CellStyle::*direction, Merge merge>
void SetMerge(Reader& reader, const Argument&)
{
    reader.CurrentCell().*direction = merge;
}

template <Alignment alignment>
void SetRowAlignment(Reader& reader, const Argument&)
{
    reader.CurrentRow().alignment = alignment;
}

void StartRow(Reader& reader, const Argument&)
{
    reader.CurrentRow() = RowStyle();
    reader.CurrentCell() = CellStyle();
    reader.SelectBorder(nullptr);
}

template <quint8 alignment>
void SetVerticalAlignment(Reader& reader, const Argument&)
{
    reader.CurrentCell().verticalAlignment = alignment;
}

constexpr WordEntry Entries[] = {
    {"trowd", StartRow},
    {"trgaph", [](Reader& r, const Argument& a) { r.CurrentRow().gap = a.Within(0, MaxTwips); }},
    {"trleft", [](Reader& r, const Argument& a) { r.CurrentRow().leftEdge = a.Within(-MaxTwips, MaxTwips); }},
    {"trhdr", [](Reader& r, const Argument&) { r.CurrentRow().isHeader = true; }},
    {"trql", SetRowAlignment<Alignment::Start>},
    {"trqc", SetRowAlignment<Alignment::Center>},
    {"trqr", SetRowAlignment<Alignment::Right>},
    {"trbrdrt", SelectRowSide<SideTop>},
    {"trbrdrl", SelectRowSide<SideLeft>},
    {"trbrdrb", SelectRowSide<SideBottom>},
    {"trbrdrr", SelectRowSide<SideRight>},
    {"trbrdrh", [](Reader& r, const Argument&) { r.SelectBorder(&r.CurrentRow().innerHorizontal); }},
    {"trbrdrv", [](Reader& r, const Argument&) { r.SelectBorder(&r.CurrentRow().innerVertical); }},
    {"clbrdrt", SelectCellSide<SideTop>},
    {"clbrdrl", SelectCellSide<SideLeft>},
    {"clbrdrb", SelectCellSide<SideBottom>},
    {"clbrdrr", SelectCellSide<SideRight>},
    {"clmgf", SetMerge<&CellStyle::horizontal, Merge::First>},
    {"clmrg", SetMerge<&CellStyle::horizontal, Merge::Continued>},
    {"clvmgf", SetMerge<&CellStyle::vertical, Merge::First>},
    {"clvmrg", SetMerge<&CellStyle::vertical, Merge::Continued>},
    {"clvertalt", SetVerticalAlignment<0>},
    {"clvertalc", SetVerticalAlignment<1>},
    {"clvertalb", SetVerticalAlignment<2>},
    {"clcbpat", [](Reader& r, const Argument& a) { r.CurrentCell().background = a.value; }},
    {"clcfpat", [](Reader& r, const Argument& a) { r.CurrentCell().patternColor = a.value; }},
    {"clshdng", [](Reader& r, const Argument& a) { r.CurrentCell().shading = a.Within(0, 10000); }},
    {"cellx", [](Reader& r, const Argument& a) { r.EndCellDefinition(a.Within(-MaxTwips, MaxTwips)); }},
    {"intbl",
     [](Reader& r, const Argument&) {
         int& depth = r.ParagraphFormat().tableDepth;
         depth = depth > 0 ? depth : 1;
     }},
    {"itap",
     [](Reader& r, const Argument& a) { r.ParagraphFormat().tableDepth = a.Within(0, MaxTableNesting); }},
    {"cell", [](Reader& r, const Argument&) { r.EndCell(false); }},
    {"row", [](Reader& r, const Argument&) { r.EndRow(false); }},
    {"nestcell", [](Reader& r, const Argument&) { r.EndCell(true); }},
    {"nestrow", [](Reader& r, const Argument&) { r.EndRow(true); }},
};

} // namespace

std::span<const WordEntry> TableWords()
{
    return Entries;
}

} // namespace torvik::rtf
