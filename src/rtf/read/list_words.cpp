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

/// Changes the level that is being read, if there is one.
template <typename Type>
void SetOfLevel(Interpreter& interpreter, Type ListLevel::*field, Type value)
{
    if (ListLevel* level = interpreter.Document().lists.CurrentLevel())
        level->*field = value;
}

void SetLevelFormat(Interpreter& interpreter, const Argument& argument)
{
    SetOfLevel(interpreter, &ListLevel::format, argument.Within(0, ListTable::noFormat));
}

constexpr WordEntry listEntries[] = {
    {"list", [](Interpreter& r, const Argument&) { r.Document().lists.BeginList(); }},
    {"listid", SetListId},
    {"listlevel", [](Interpreter& r, const Argument&) { r.Document().lists.BeginLevel(); }},
    {"lfolevel", [](Interpreter& r, const Argument&) { r.Document().lists.BeginOverriddenLevel(); }},
    {"listoverridestartat",
     [](Interpreter& r, const Argument&) { r.Document().lists.RestartOverriddenLevel(); }},
    {"levellegal", [](Interpreter& r, const Argument& a) { SetOfLevel(r, &ListLevel::isLegal, a.IsOn()); }},
    {"levelnorestart",
     [](Interpreter& r, const Argument& a) { SetOfLevel(r, &ListLevel::goesOn, a.IsOn()); }},
    {"levelfollow",
     [](Interpreter& r, const Argument& a) { SetOfLevel(r, &ListLevel::follow, a.Within(0, 2)); }},
    {"levelnfc", SetLevelFormat},
    {"levelnfcn", SetLevelFormat},
    {"levelstartat",
     [](Interpreter& r, const Argument& a) { r.Document().lists.SetStart(a.Within(0, 30000, 1)); }},
    {"leveltext",
     [](Interpreter& r, const Argument&) {
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
