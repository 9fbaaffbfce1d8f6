#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words of the fields of a form, and of what a document tells about itself.

namespace torvik::rtf {

namespace {

FormField& Form(Interpreter& interpreter)
{
    return interpreter.Fields().Form();
}

void SetKind(Interpreter& interpreter, const Argument& argument)
{
    constexpr FormField::Kind kinds[] = {FormField::Kind::Text, FormField::Kind::CheckBox,
                                         FormField::Kind::Choice};
    Form(interpreter).kind = kinds[argument.Within(0, 2)];
}

/// An entry of the information is known by the word that begins it.
template <const char* name>
void BeginEntry(Interpreter& interpreter, const Argument&)
{
    interpreter.BeginInformation(QString::fromLatin1(name));
}

template <const char* name>
void BeginTime(Interpreter& interpreter, const Argument&)
{
    interpreter.BeginTime(QString::fromLatin1(name));
}

template <int StoredTime::*piece>
void SetPiece(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Time().*piece = argument.Or(0);
}

std::optional<int> CountOf(const Argument& argument)
{
    return argument.isGiven && argument.value >= 0 ? std::optional(argument.value) : std::nullopt;
}

constexpr char title[] = "title";
constexpr char subject[] = "subject";
constexpr char author[] = "author";
constexpr char keywords[] = "keywords";
constexpr char comment[] = "doccomm";

constexpr char created[] = "creatim";
constexpr char saved[] = "revtim";
constexpr char printed[] = "printim";
constexpr char backedUp[] = "buptim";

constexpr int largestNumber = 1'000'000;

constexpr WordEntry formEntries[] = {
    {"fftype", SetKind},
    {"ffres", [](Interpreter& r, const Argument& a) { Form(r).chosen = a.Within(0, FormField::undecided); }},
    {"ffdefres",
     [](Interpreter& r, const Argument& a) { Form(r).proposed = a.Within(0, FormField::undecided); }},
    {"ffdeftext", [](Interpreter& r, const Argument&) { r.Enter(Destination::FormText); }},
    {"ffl", [](Interpreter& r, const Argument&) { r.Enter(Destination::FormChoice); }},
};

constexpr WordEntry informationEntries[] = {
    {title, BeginEntry<title>},
    {subject, BeginEntry<subject>},
    {author, BeginEntry<author>},
    {keywords, BeginEntry<keywords>},
    {comment, BeginEntry<comment>},
    {created, BeginTime<created>},
    {saved, BeginTime<saved>},
    {printed, BeginTime<printed>},
    {backedUp, BeginTime<backedUp>},
    {"yr", SetPiece<&StoredTime::year>},
    {"mo", SetPiece<&StoredTime::month>},
    {"dy", SetPiece<&StoredTime::day>},
    {"hr", SetPiece<&StoredTime::hour>},
    {"min", SetPiece<&StoredTime::minute>},
    {"sec", SetPiece<&StoredTime::second>},
    {"nofwords", [](Interpreter& r, const Argument& a) { r.Fields().Surroundings().words = CountOf(a); }},
    {"nofchars",
     [](Interpreter& r, const Argument& a) { r.Fields().Surroundings().characters = CountOf(a); }},
    {"nofpages", [](Interpreter& r,
                    const Argument& a) { r.Fields().Surroundings().pages = a.Within(1, largestNumber, 1); }},
};

} // namespace

std::span<const WordEntry> FormWords()
{
    return formEntries;
}

std::span<const WordEntry> InformationWords()
{
    return informationEntries;
}

} // namespace torvik::rtf
