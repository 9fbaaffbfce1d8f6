#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words of the tables of lists.

namespace torvik::rtf {

namespace {

bool IsOverride(Interpreter& interpreter)
{
    return interpreter.Document().group.destination == Destination::ListOverrides;
}

void SetListId(Interpreter& interpreter, const Argument& argument)
{
    if (IsOverride(interpreter))
        interpreter.Document().lists.SetOverriddenList(argument.value);
    else
        interpreter.Document().lists.SetListId(argument.value);
}

void SetLevelFormat(Interpreter& interpreter, const Argument& argument)
{
    if (ListLevel* level = interpreter.Document().lists.CurrentLevel();
        level != nullptr && !IsOverride(interpreter))
        level->format = argument.Within(0, 255);
}

constexpr WordEntry listEntries[] = {
    {"list", [](Interpreter& r, const Argument&) { r.Document().lists.BeginList(); }},
    {"listid", SetListId},
    {"listlevel",
     [](Interpreter& r, const Argument&) {
         if (!IsOverride(r))
             r.Document().lists.BeginLevel();
     }},
    {"lfolevel", [](Interpreter& r, const Argument&) { r.Document().lists.BeginOverriddenLevel(); }},
    {"levellegal",
     [](Interpreter& r, const Argument& a) {
         if (ListLevel* level = r.Document().lists.CurrentLevel(); level != nullptr && !IsOverride(r))
             level->isLegal = a.IsOn();
     }},
    {"levelfollow",
     [](Interpreter& r, const Argument& a) {
         if (ListLevel* level = r.Document().lists.CurrentLevel(); level != nullptr && !IsOverride(r))
             level->follow = a.Within(0, 2);
     }},
    {"levelnfc", SetLevelFormat},
    {"levelnfcn", SetLevelFormat},
    {"levelstartat",
     [](Interpreter& r, const Argument& a) {
         const int start = a.Within(0, 30000, 1);
         if (IsOverride(r))
             r.Document().lists.SetOverriddenStart(start);
         else if (ListLevel* level = r.Document().lists.CurrentLevel())
             level->startAt = start;
     }},
    {"leveltext",
     [](Interpreter& r, const Argument&) {
         if (IsOverride(r))
             return r.Skip();
         r.Enter(Destination::LevelText);
         // The pattern has no font yet: the level names one after it.
         r.Document().group.page = &CodePage::Of(r.Document().codePage);
     }},
    {"levelnumbers", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"listname", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"listpicture", [](Interpreter& r, const Argument&) { r.Skip(); }},
    {"listoverride", [](Interpreter& r, const Argument&) { r.Document().lists.BeginOverride(); }},
    {"ls", [](Interpreter& r, const Argument& a) { r.Document().lists.SetReference(a.value); }},
};

} // namespace

std::span<const WordEntry> ListWords()
{
    return listEntries;
}

} // namespace torvik::rtf
