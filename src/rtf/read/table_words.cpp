#include "rtf/bounds/limits.h"
#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words about rows and cells.

namespace torvik::rtf {

namespace {

template <Side side>
void SelectCellSide(Interpreter& interpreter, const Argument&)
{
    interpreter.SelectBorder(&interpreter.CurrentCell().borders[side]);
}

template <Side side>
void SelectRowSide(Interpreter& interpreter, const Argument&)
{
    interpreter.SelectBorder(&interpreter.CurrentRow().borders[side]);
}

template <Merge CellStyle::*direction, Merge merge>
void SetMerge(Interpreter& interpreter, const Argument&)
{
    interpreter.CurrentCell().*direction = merge;
}

template <Alignment alignment>
void SetRowAlignment(Interpreter& interpreter, const Argument&)
{
    interpreter.CurrentRow().alignment = alignment;
}

void StartRow(Interpreter& interpreter, const Argument&)
{
    interpreter.CurrentRow() = RowStyle();
    interpreter.CurrentCell() = CellStyle();
    interpreter.SelectBorder(nullptr);
}

template <quint8 alignment>
void SetVerticalAlignment(Interpreter& interpreter, const Argument&)
{
    interpreter.CurrentCell().verticalAlignment = alignment;
}

constexpr WordEntry tableEntries[] = {
    {"trowd", StartRow},
    {"trgaph", [](Interpreter& r, const Argument& a) { r.CurrentRow().gap = a.Within(0, maxTwips); }},
    {"trleft",
     [](Interpreter& r, const Argument& a) { r.CurrentRow().leftEdge = a.Within(-maxTwips, maxTwips); }},
    {"trhdr", [](Interpreter& r, const Argument&) { r.CurrentRow().isHeader = true; }},
    {"trql", SetRowAlignment<Alignment::Start>},
    {"trqc", SetRowAlignment<Alignment::Center>},
    {"trqr", SetRowAlignment<Alignment::Right>},
    {"trbrdrt", SelectRowSide<SideTop>},
    {"trbrdrl", SelectRowSide<SideLeft>},
    {"trbrdrb", SelectRowSide<SideBottom>},
    {"trbrdrr", SelectRowSide<SideRight>},
    {"trbrdrh", [](Interpreter& r, const Argument&) { r.SelectBorder(&r.CurrentRow().innerHorizontal); }},
    {"trbrdrv", [](Interpreter& r, const Argument&) { r.SelectBorder(&r.CurrentRow().innerVertical); }},
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
    {"clcbpat", [](Interpreter& r, const Argument& a) { r.CurrentCell().background = a.value; }},
    {"clcfpat", [](Interpreter& r, const Argument& a) { r.CurrentCell().patternColor = a.value; }},
    {"clshdng", [](Interpreter& r, const Argument& a) { r.CurrentCell().shading = a.Within(0, 10000); }},
    {"cellx", [](Interpreter& r, const Argument& a) { r.EndCellDefinition(a.Within(-maxTwips, maxTwips)); }},
    {"intbl",
     [](Interpreter& r, const Argument&) {
         int& depth = r.ParagraphFormat().tableDepth;
         depth = depth > 0 ? depth : 1;
     }},
    {"itap", [](Interpreter& r,
                const Argument& a) { r.ParagraphFormat().tableDepth = a.Within(0, maxTableNesting); }},
    {"cell", [](Interpreter& r, const Argument&) { r.EndCell(false); }},
    {"row", [](Interpreter& r, const Argument&) { r.EndRow(false); }},
    {"nestcell", [](Interpreter& r, const Argument&) { r.EndCell(true); }},
    {"nestrow", [](Interpreter& r, const Argument&) { r.EndRow(true); }},
};

} // namespace

std::span<const WordEntry> TableWords()
{
    return tableEntries;
}

} // namespace torvik::rtf
