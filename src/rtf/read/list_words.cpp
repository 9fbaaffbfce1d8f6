#include "rtf/read/reader.h"
#include "rtf/read/word_table.h"

// Words of the list tables, and of the older numbering that every paragraph carries with it.

namespace torvik::rtf {

namespace {

using Kind = ParagraphNumbering::Kind;

bool IsOverride(Reader& reader)
{
    return reader.State().destination == Destination::ListOverrides;
}

void SetListId(Reader& reader, const Argument& argument)
{
    if (IsOverride(reader))
        reader.Lists().SetOverriddenList(argument.value);
    else
        reader.Lists().SetListId(argument.value);
}

void SetLevelFormat(Reader& reader, const Argument& argument)
{
    if (ListLevel* level = reader.Lists().CurrentLevel(); level != nullptr && !IsOverride(reader))
        level->format = argument.Within(0, 255);
}

constexpr WordEntry ListEntries[] = {
    {"list", [](Reader& r, const Argument&) { r.Lists().BeginList(); }},
    {"listid", SetListId},
    {"listlevel",
     [](Reader& r, const Argument&) {
         if (!IsOverride(r))
             r.Lists().BeginLevel();
     }},
    {"levelnfc", SetLevelFormat},
    {"levelnfcn", SetLevelFormat},
    {"levelstartat",
     [](Reader& r, const Argument& a) {
         if (ListLevel* level = r.Lists().CurrentLevel(); level != nullptr && !IsOverride(r))
             level->startAt = a.Within(0, 30000, 1);
     }},
    {"leveltext",
     [](Reader& r, const Argument&) {
         if (IsOverride(r))
             r.Skip();
         else
             r.Enter(Destination::LevelText);
     }},
    {"levelnumbers", [](Reader& r, const Argument&) { r.Skip(); }},
    {"listname", [](Reader& r, const Argument&) { r.Skip(); }},
    {"listpicture", [](Reader& r, const Argument&) { r.Skip(); }},
    {"listoverride", [](Reader& r, const Argument&) { r.Lists().BeginOverride(); }},
    {"ls", [](Reader& r, const Argument& a) { r.Lists().SetReference(a.value); }},
};

ParagraphNumbering& Numbering(Reader& reader)
{
    return reader.ParagraphFormat().numbering;
}

template <Kind kind>
void SetKind(Reader& reader, const Argument&)
{
    Numbering(reader) = ParagraphNumbering();
    Numbering(reader).kind = kind;
}

template <int format>
void SetFormat(Reader& reader, const Argument&)
{
    ParagraphNumbering& numbering = Numbering(reader);
    if (numbering.kind != Kind::Bullet)
        numbering.kind = Kind::Number;
    numbering.format = format;
}

constexpr WordEntry NumberingEntries[] = {
    {"pnlvlblt", SetKind<Kind::Bullet>},
    {"pnlvlbody", SetKind<Kind::Number>},
    {"pnlvl", SetKind<Kind::Number>},
    {"pnlvlcont", SetKind<Kind::None>},
    {"pndec", SetFormat<0>},
    {"pnucrm", SetFormat<1>},
    {"pnlcrm", SetFormat<2>},
    {"pnucltr", SetFormat<3>},
    {"pnlcltr", SetFormat<4>},
    {"pnstart", [](Reader& r, const Argument& a) { Numbering(r).start = a.Within(0, 30000, 1); }},
    {"pntxtb",
     [](Reader& r, const Argument&) {
         Numbering(r).before.clear();
         r.Enter(Destination::NumberingBefore);
     }},
    {"pntxta",
     [](Reader& r, const Argument&) {
         Numbering(r).after.clear();
         r.Enter(Destination::NumberingAfter);
     }},
    {"pnf", [](Reader& r, const Argument& a) { r.SetFont(a.value); }},
};

} // namespace

std::span<const WordEntry> ListWords()
{
    return ListEntries;
}

std::span<const WordEntry> NumberingWords()
{
    return NumberingEntries;
}

} // namespace torvik::rtf
