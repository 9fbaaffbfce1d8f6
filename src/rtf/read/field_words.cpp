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

constexpr char title[] = "title";
constexpr char subject[] = "subject";
constexpr char author[] = "author";
constexpr char keywords[] = "keywords";
constexpr char comment[] = "doccomm";

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
