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
    const bool isSkipped = numbering.kind == ParagraphNumbering::Kind::Skipped;
    if (numbering.kind != ParagraphNumbering::Kind::Bullet && !isSkipped)
        numbering.kind = ParagraphNumbering::Kind::Number;
    numbering.format = format;
}

constexpr WordEntry numberingEntries[] = {
    {"pnlvlblt", SetNumberingKind<ParagraphNumbering::Kind::Bullet>},
    {"pnlvlbody", SetNumberingKind<ParagraphNumbering::Kind::Number>},
    {"pnlvl",
     [](Interpreter& r, const Argument& a) {
         SetNumberingKind<ParagraphNumbering::Kind::Number>(r, a);
         Numbering(r).level = static_cast<quint8>(a.Within(1, ListTable::maxLevels + 2, 1));
     }},
    {"pnlvlcont", SetNumberingKind<ParagraphNumbering::Kind::Skipped>},
    {"pndec", SetNumberFormat<0>},
    {"pnucrm", SetNumberFormat<1>},
    {"pnlcrm", SetNumberFormat<2>},
    {"pnucltr", SetNumberFormat<3>},
    {"pnlcltr", SetNumberFormat<4>},
    {"pnord", SetNumberFormat<5>},
    {"pncard", SetNumberFormat<6>},
    {"pnordt", SetNumberFormat<7>},
    {"pndbnum", SetNumberFormat<10>},
    {"pndbnumd", SetNumberFormat<11>},
    {"pnaiu", SetNumberFormat<12>},
    {"pniroha", SetNumberFormat<13>},
    {"pndecd", SetNumberFormat<14>},
    {"pndbnumt", SetNumberFormat<16>},
    {"pndbnuml", SetNumberFormat<16>},
    {"pndbnumk", SetNumberFormat<17>},
    {"pncnum", SetNumberFormat<18>},
    {"pnaiud", SetNumberFormat<20>},
    {"pnaiueo", SetNumberFormat<12>},
    {"pnaiueod", SetNumberFormat<20>},
    {"pnirohad", SetNumberFormat<21>},
    {"pnganada", SetNumberFormat<24>},
    {"pnchosung", SetNumberFormat<25>},
    {"pngbnum", SetNumberFormat<26>},
    {"pngbnumd", SetNumberFormat<27>},
    {"pngbnuml", SetNumberFormat<28>},
    {"pngbnumk", SetNumberFormat<29>},
    {"pnzodiac", SetNumberFormat<30>},
    {"pnzodiacd", SetNumberFormat<31>},
    {"pnzodiacl", SetNumberFormat<32>},
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
