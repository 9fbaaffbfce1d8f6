#include "rtf/bounds/limits.h"
#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words about rows and cells.

namespace torvik::rtf {

namespace {

template <Side side>
void SelectCellSide(Interpreter& interpreter, const Argument&)
{
    interpreter.Borders().Choose(interpreter.Rows().Cell().borders[side]);
}

template <Side side>
void SelectRowSide(Interpreter& interpreter, const Argument&)
{
    interpreter.Borders().Choose(interpreter.Rows().Row().borders[side]);
}

template <Merge CellStyle::*direction, Merge merge>
void SetMerge(Interpreter& interpreter, const Argument&)
{
    interpreter.Rows().Cell().*direction = merge;
}

template <Alignment alignment>
void SetRowAlignment(Interpreter& interpreter, const Argument&)
{
    interpreter.Rows().Row().alignment = alignment;
}

template <quint8 alignment>
void SetVerticalAlignment(Interpreter& interpreter, const Argument&)
{
    interpreter.Rows().Cell().verticalAlignment = alignment;
}

template <Side side>
void SetRowPadding(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Rows().Row().padding[side] = argument.Within(0, maxTwips);
}

template <Side side>
void SetCellPadding(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Rows().Cell().padding[side] = argument.Within(0, maxTwips);
}

constexpr WordEntry tableEntries[] = {
    {"trowd", [](Interpreter& r, const Argument&) { r.Rows().Begin(); }},
    {"trgaph", [](Interpreter& r, const Argument& a) { r.Rows().Row().gap = a.Within(0, maxTwips); }},
    {"trleft",
     [](Interpreter& r, const Argument& a) { r.Rows().Row().leftEdge = a.Within(-maxTwips, maxTwips); }},
    {"trhdr", [](Interpreter& r, const Argument&) { r.Rows().Row().isHeader = true; }},
    {"trrh",
     [](Interpreter& r, const Argument& a) { r.Rows().Row().height = a.Within(-maxTwips, maxTwips); }},
    {"rtlrow", [](Interpreter& r, const Argument&) { r.Rows().Row().rightToLeft = true; }},
    {"ltrrow", [](Interpreter& r, const Argument&) { r.Rows().Row().rightToLeft = false; }},
    {"trpaddt", SetRowPadding<SideTop>},
    {"trpaddl", SetRowPadding<SideLeft>},
    {"trpaddb", SetRowPadding<SideBottom>},
    {"trpaddr", SetRowPadding<SideRight>},
    // Writers have these two the wrong way round.
    {"clpadt", SetCellPadding<SideLeft>},
    {"clpadl", SetCellPadding<SideTop>},
    {"clpadb", SetCellPadding<SideBottom>},
    {"clpadr", SetCellPadding<SideRight>},
    {"trql", SetRowAlignment<Alignment::Start>},
    {"trqc", SetRowAlignment<Alignment::Center>},
    {"trqr", SetRowAlignment<Alignment::Right>},
    {"trbrdrt", SelectRowSide<SideTop>},
    {"trbrdrl", SelectRowSide<SideLeft>},
    {"trbrdrb", SelectRowSide<SideBottom>},
    {"trbrdrr", SelectRowSide<SideRight>},
    {"trbrdrh", [](Interpreter& r, const Argument&) { r.Borders().Choose(r.Rows().Row().innerHorizontal); }},
    {"trbrdrv", [](Interpreter& r, const Argument&) { r.Borders().Choose(r.Rows().Row().innerVertical); }},
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
    {"clcbpat", [](Interpreter& r, const Argument& a) { r.Rows().Cell().background = a.value; }},
    {"clcfpat", [](Interpreter& r, const Argument& a) { r.Rows().Cell().patternColor = a.value; }},
    {"clshdng", [](Interpreter& r, const Argument& a) { r.Rows().Cell().shading = a.Within(0, 10000); }},
    {"cellx", [](Interpreter& r, const Argument& a) { r.Rows().EndCell(a.Within(-maxTwips, maxTwips)); }},
    {"intbl",
     [](Interpreter& r, const Argument&) {
         int& depth = r.Paragraph().tableDepth;
         depth = depth > 0 ? depth : 1;
     }},
    {"itap",
     [](Interpreter& r, const Argument& a) { r.Paragraph().tableDepth = a.Within(0, maxTableNesting); }},
    {"cell", [](Interpreter& r, const Argument&) { r.Paragraphs().EndCell(false); }},
    {"row", [](Interpreter& r, const Argument&) { r.Paragraphs().EndRow(false); }},
    {"nestcell", [](Interpreter& r, const Argument&) { r.Paragraphs().EndCell(true); }},
    {"nestrow", [](Interpreter& r, const Argument&) { r.Paragraphs().EndRow(true); }},
};

} // namespace

std::span<const WordEntry> TableWords()
{
    return tableEntries;
}

} // namespace torvik::rtf
