#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words of the list tables, and of the older numbering that every paragraph carries with it.

namespace torvik::rtf {

namespace {

using Kind = ParagraphNumbering::Kind;

bool IsOverride(Interpreter& interpreter)
{
    return interpreter.State().destination == Destination::ListOverrides;
}

void SetListId(Interpreter& interpreter, const Argument& argument)
{
    if (IsOverride(interpreter))
        interpreter.Lists().SetOverriddenList(argument.value);
    else
        interpreter.Lists().SetListId(argument.value);
}

void SetLevelFormat(Interpreter& interpreter, const Argument& argument)
{
    if (ListLevel* level = interpreter.Lists().CurrentLevel(); level != nullptr && !IsOverride(interpreter))
        level->format = argument.Within(0, 255);
}

constexpr WordEntry listEntries[] = {
    {"list", [](Interpreter& r, const Argument&) { r.Lists().BeginList(); }},
    {"listid", SetListId},
    {"listlevel",
     [](Interpreter& r, const Argument&) {
         if (!IsOverride(r))
             r.Lists().BeginLevel();
     }},
    {"levelnfc", SetLevelFormat},
    {"levelnfcn", SetLevelFormat},
    {"levelstartat",
     [](Interpreter& r, const Argument& a) {
         if (ListLevel* level = r.Lists().CurrentLevel(); level != nullptr && !IsOverride(r))
             level->startAt = a.Within(0, 30000, 1);
     }},
    {"leveltext",
     [](Interpreter& r, const Argument&) {
         if (IsOverride(r))
             r.Skip();
         else
             r.Enter(Destination::LevelText);
     }},
    {"levelnumbers", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"listname", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"listpicture", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"listoverride", [](Interpreter& r, const Argument&) { r.Lists().BeginOverride(); }},
    {"ls", [](Interpreter& r, const Argument& a) { r.Lists().SetReference(a.value); }},
};

ParagraphNumbering& Numbering(Interpreter& interpreter)
{
    return interpreter.ParagraphFormat().numbering;
}

template <Kind kind>
void SetKind(Interpreter& interpreter, const Argument&)
{
    Numbering(interpreter) = ParagraphNumbering();
    Numbering(interpreter).kind = kind;
}

template <int format>
void SetFormat(Interpreter& interpreter, const Argument&)
{
    ParagraphNumbering& numbering = Numbering(interpreter);
    if (numbering.kind != Kind::Bullet)
        numbering.kind = Kind::Number;
    numbering.format = format;
}

constexpr WordEntry numberingEntries[] = {
    {"pnlvlblt", SetKind<Kind::Bullet>},
    {"pnlvlbody", SetKind<Kind::Number>},
    {"pnlvl", SetKind<Kind::Number>},
    {"pnlvlcont", SetKind<Kind::None>},
    {"pndec", SetFormat<0>},
    {"pnucrm", SetFormat<1>},
    {"pnlcrm", SetFormat<2>},
    {"pnucltr", SetFormat<3>},
    {"pnlcltr", SetFormat<4>},
    {"pnstart", [](Interpreter& r, const Argument& a) { Numbering(r).start = a.Within(0, 30000, 1); }},
    {"pntxtb",
     [](Interpreter& r, const Argument&) {
         Numbering(r).before.clear();
         r.Enter(Destination::NumberingBefore);
     }},
    {"pntxta",
     [](Interpreter& r, const Argument&) {
         Numbering(r).after.clear();
         r.Enter(Destination::NumberingAfter);
     }},
    {"pnf", [](Interpreter& r, const Argument& a) { r.SetFont(a.value); }},
};

} // namespace

std::span<const WordEntry> ListWords()
{
    return listEntries;
}

std::span<const WordEntry> NumberingWords()
{
    return numberingEntries;
}

} // namespace torvik::rtf
