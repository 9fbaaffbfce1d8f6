#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words of the older kind of numbering, which every paragraph carries with it.

namespace torvik::rtf {

namespace {

ParagraphNumbering& Numbering(Interpreter& interpreter)
{
    return interpreter.Paragraph().numbering;
}

template <ParagraphNumbering::Kind kind>
void SetNumberingKind(Interpreter& interpreter, const Argument&)
{
    Numbering(interpreter) = ParagraphNumbering();
    Numbering(interpreter).kind = kind;
}

template <int format>
void SetNumberFormat(Interpreter& interpreter, const Argument&)
{
    ParagraphNumbering& numbering = Numbering(interpreter);
    if (numbering.kind != ParagraphNumbering::Kind::Bullet)
        numbering.kind = ParagraphNumbering::Kind::Number;
    numbering.format = format;
}

constexpr WordEntry numberingEntries[] = {
    {"pnlvlblt", SetNumberingKind<ParagraphNumbering::Kind::Bullet>},
    {"pnlvlbody", SetNumberingKind<ParagraphNumbering::Kind::Number>},
    {"pnlvl", SetNumberingKind<ParagraphNumbering::Kind::Number>},
    {"pnlvlcont", SetNumberingKind<ParagraphNumbering::Kind::None>},
    {"pndec", SetNumberFormat<0>},
    {"pnucrm", SetNumberFormat<1>},
    {"pnlcrm", SetNumberFormat<2>},
    {"pnucltr", SetNumberFormat<3>},
    {"pnlcltr", SetNumberFormat<4>},
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
    {"pnf", [](Interpreter& r, const Argument& a) { r.Looks().SetFont(a.value); }},
};

} // namespace

std::span<const WordEntry> NumberingWords()
{
    return numberingEntries;
}

} // namespace torvik::rtf
