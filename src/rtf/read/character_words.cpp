#include "rtf/bounds/limits.h"
#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words about the looks of characters.

namespace torvik::rtf {

namespace {

constexpr int largestSize = 3276;

template <Underline kind>
void SetUnderline(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Character().underline = argument.IsOn() ? kind : Underline::None;
}

template <bool CharacterState::*flag>
void SetCharacterFlag(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Character().*flag = argument.IsOn();
}

template <int CharacterState::*color>
void SetCharacterColor(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Character().*color = argument.value;
}

template <Script script>
void SetScript(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Character().script = argument.IsOn() ? script : Script::Normal;
}

template <Relief relief>
void SetRelief(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Character().relief = argument.IsOn() ? relief : Relief::Flat;
}

template <Capitals capitals>
void SetCapitals(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Character().capitals = argument.IsOn() ? capitals : Capitals::AsWritten;
}

template <bool isRightToLeft>
void SetDirection(Interpreter& interpreter, const Argument&)
{
    interpreter.Character().rightToLeft = isRightToLeft;
    interpreter.Document().group.describesComplex = isRightToLeft;
}

/// The words of the looks beside the usual ones also name fonts for the signs of East Asia and others.
void DescribeOthers(Interpreter& interpreter, const Argument&)
{
    interpreter.Document().group.describesComplex = false;
}

/// Changes the looks of letters of complex scripts, where the words are about those.
template <typename Change>
void ChangeComplex(Interpreter& interpreter, Change change)
{
    if (!interpreter.Document().group.describesComplex)
        return;
    ComplexLooks& looks = interpreter.Character().complex;
    looks.isTold = true;
    change(looks);
}

constexpr WordEntry characterEntries[] = {
    {"plain", [](Interpreter& r, const Argument&) { r.Looks().Reset(); }},
    {"cs", [](Interpreter& r, const Argument& a) { r.Styles().ApplyToCharacters(a.value); }},
    {"f", [](Interpreter& r, const Argument& a) { r.Looks().SetFont(a.value); }},
    {"fs", [](Interpreter& r, const Argument& a) { r.Character().size = a.Within(2, largestSize, 24); }},
    {"b", SetCharacterFlag<&CharacterState::bold>},
    {"i", SetCharacterFlag<&CharacterState::italic>},
    {"af", [](Interpreter& r,
              const Argument& a) { ChangeComplex(r, [&](ComplexLooks& looks) { looks.font = a.value; }); }},
    {"afs",
     [](Interpreter& r, const Argument& a) {
         ChangeComplex(r, [&](ComplexLooks& looks) { looks.size = a.Within(2, largestSize, 24); });
     }},
    {"ab", [](Interpreter& r,
              const Argument& a) { ChangeComplex(r, [&](ComplexLooks& looks) { looks.bold = a.IsOn(); }); }},
    {"ai",
     [](Interpreter& r, const Argument& a) {
         ChangeComplex(r, [&](ComplexLooks& looks) { looks.italic = a.IsOn(); });
     }},
    {"strike", SetCharacterFlag<&CharacterState::strike>},
    {"striked", SetCharacterFlag<&CharacterState::doubleStrike>},
    {"outl", SetCharacterFlag<&CharacterState::outlined>},
    {"shad", SetRelief<Relief::Shadowed>},
    {"embo", SetRelief<Relief::Embossed>},
    {"impr", SetRelief<Relief::Engraved>},
    {"v", SetCharacterFlag<&CharacterState::hidden>},
    {"rtlch", SetDirection<true>},
    {"ltrch", SetDirection<false>},
    {"fcs", [](Interpreter& r, const Argument& a) { r.Document().group.describesComplex = a.IsOn(); }},
    {"loch", DescribeOthers},
    {"hich", DescribeOthers},
    {"dbch", DescribeOthers},
    {"ul", SetUnderline<Underline::Single>},
    {"ulw", SetUnderline<Underline::Words>},
    {"uldb", SetUnderline<Underline::Double>},
    {"ulth", SetUnderline<Underline::Thick>},
    {"uld", SetUnderline<Underline::Dotted>},
    {"ulthd", SetUnderline<Underline::ThickDotted>},
    {"uldash", SetUnderline<Underline::Dashed>},
    {"ulldash", SetUnderline<Underline::Dashed>},
    {"ulthdash", SetUnderline<Underline::ThickDashed>},
    {"ulthldash", SetUnderline<Underline::ThickDashed>},
    {"uldashd", SetUnderline<Underline::DashDot>},
    {"ulthdashd", SetUnderline<Underline::ThickDashDot>},
    {"uldashdd", SetUnderline<Underline::DashDotDot>},
    {"ulthdashdd", SetUnderline<Underline::ThickDashDotDot>},
    {"ulwave", SetUnderline<Underline::Wave>},
    {"ulhwave", SetUnderline<Underline::HeavyWave>},
    {"ululdbwave", SetUnderline<Underline::DoubleWave>},
    {"ulnone", [](Interpreter& r, const Argument&) { r.Character().underline = Underline::None; }},
    {"ulc", SetCharacterColor<&CharacterState::underlineColor>},
    {"cf", SetCharacterColor<&CharacterState::foreground>},
    {"cb", SetCharacterColor<&CharacterState::background>},
    {"highlight", SetCharacterColor<&CharacterState::background>},
    {"chcbpat", SetCharacterColor<&CharacterState::background>},
    {"chcfpat", SetCharacterColor<&CharacterState::patternColor>},
    {"chshdng", [](Interpreter& r, const Argument& a) { r.Character().shading = a.Within(0, 10000); }},
    {"super", SetScript<Script::Super>},
    {"sub", SetScript<Script::Sub>},
    {"nosupersub", [](Interpreter& r, const Argument&) { r.Character().script = Script::Normal; }},
    {"up", [](Interpreter& r, const Argument& a) { r.Character().raised = a.Within(0, 200, 6); }},
    {"dn", [](Interpreter& r, const Argument& a) { r.Character().raised = -a.Within(0, 200, 6); }},
    {"caps", SetCapitals<Capitals::All>},
    {"scaps", SetCapitals<Capitals::Small>},
    {"expnd", [](Interpreter& r, const Argument& a) { r.Character().spacing = 5 * a.Within(-300, 300); }},
    {"expndtw", [](Interpreter& r, const Argument& a) { r.Character().spacing = a.Within(-1500, 1500); }},
    {"charscalex", [](Interpreter& r, const Argument& a) { r.Character().stretch = a.Within(1, 600, 100); }},
};

} // namespace

std::span<const WordEntry> CharacterWords()
{
    return characterEntries;
}

} // namespace torvik::rtf
