#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words that stand for a character, and those that end a paragraph or a page.

namespace torvik::rtf {

namespace {

template <char16_t unit>
void Put(Interpreter& interpreter, const Argument&)
{
    interpreter.Text().PutCharacter(unit);
}

constexpr char16_t lineSeparator = 0x2028;

/// A text that an instruction quotes may have several paragraphs, which are lines of its result.
void EndParagraph(Interpreter& interpreter, const Argument&)
{
    const Destination destination = interpreter.Document().group.destination;
    if (destination == Destination::FieldInstruction || destination == Destination::FieldValue)
        interpreter.Text().PutCharacter(lineSeparator);
    else
        interpreter.Paragraphs().EndParagraph();
}

/// Older writers raise the number of a note and leave it as large as the text, which has no room for it.
void PutNoteNumber(Interpreter& interpreter, const Argument&)
{
    CharacterState& looks = interpreter.Character();
    const CharacterState told = looks;
    if (looks.raised > 0) {
        looks.raised = 0;
        looks.script = Script::Super;
    }
    interpreter.Text().Put(interpreter.Notes().Reference());
    looks = told;
}

/// Words that stand for a field.
template <const char16_t* instruction>
void PutField(Interpreter& interpreter, const Argument&)
{
    const QString text = interpreter.Fields().TextOf(QString::fromUtf16(instruction));
    interpreter.Text().Put(text);
}

constexpr char16_t page[] = u"PAGE";
constexpr char16_t date[] = u"DATE";
constexpr char16_t longDate[] = u"DATE \\@ \"dddd, MMMM d, yyyy\"";
constexpr char16_t shortDate[] = u"DATE \\@ \"ddd, MMM d, yyyy\"";
constexpr char16_t time[] = u"TIME";

constexpr WordEntry specialEntries[] = {
    {"par", EndParagraph},
    {"page", [](Interpreter& r, const Argument&) { r.Paragraphs().BreakPage(); }},
    {"sect", [](Interpreter& r, const Argument&) { r.Paragraphs().BreakPage(); }},
    {"sbknone", [](Interpreter& r, const Argument&) { r.Paragraphs().CancelBreak(); }},
    {"sbkcol", [](Interpreter& r, const Argument&) { r.Paragraphs().CancelBreak(); }},
    {"chftn", PutNoteNumber},
    {"chpgn", PutField<page>},
    {"chdate", PutField<date>},
    {"chdpl", PutField<longDate>},
    {"chdpa", PutField<shortDate>},
    {"chtime", PutField<time>},
    {"tab", Put<u'\t'>},
    {"line", Put<lineSeparator>},
    {"lbr", Put<lineSeparator>},
    {"emdash", Put<u'\u2014'>},
    {"endash", Put<u'\u2013'>},
    {"emspace", Put<u'\u2003'>},
    {"enspace", Put<u'\u2002'>},
    {"qmspace", Put<u'\u2005'>},
    {"bullet", Put<u'\u2022'>},
    {"lquote", Put<u'\u2018'>},
    {"rquote", Put<u'\u2019'>},
    {"ldblquote", Put<u'\u201c'>},
    {"rdblquote", Put<u'\u201d'>},
    {"zwj", Put<u'\u200d'>},
    {"zwnj", Put<u'\u200c'>},
    {"zwbo", Put<u'\u200b'>},
    {"zwnbo", Put<u'\u2060'>},
    {"ltrmark", Put<u'\u200e'>},
    {"rtlmark", Put<u'\u200f'>},
};

} // namespace

std::span<const WordEntry> SpecialWords()
{
    return specialEntries;
}

} // namespace torvik::rtf
