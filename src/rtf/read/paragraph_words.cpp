#include "rtf/bounds/limits.h"
#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words about the looks of paragraphs, and about borders, which paragraphs and cells share.

namespace torvik::rtf {

namespace {

template <Alignment alignment>
void SetAlignment(Interpreter& interpreter, const Argument&)
{
    interpreter.Paragraph().alignment = alignment;
}

template <int ParagraphState::*length>
void SetLength(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Paragraph().*length = argument.Within(-maxTwips, maxTwips);
}

/// Spaces are never negative.
template <int ParagraphState::*space>
void SetSpace(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Paragraph().*space = argument.Within(0, maxTwips);
}

template <int ParagraphState::*color>
void SetParagraphColor(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Paragraph().*color = argument.value;
}

template <bool ParagraphState::*flag>
void SetParagraphFlag(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Paragraph().*flag = argument.IsOn();
}

/// Kind and leader come before the position: until then they are kept in a stop at position 0.
TabStop& PendingTab(QList<TabStop>& tabs)
{
    if (tabs.isEmpty() || tabs.constLast().position != 0)
        tabs.append(TabStop());
    return tabs.last();
}

template <QTextOption::TabType type>
void SetTabType(Interpreter& interpreter, const Argument&)
{
    QList<TabStop>& tabs = interpreter.Paragraph().tabs;
    PendingTab(tabs).type = type;
}

template <TabLeader leader>
void SetTabLeader(Interpreter& interpreter, const Argument&)
{
    PendingTab(interpreter.Paragraph().tabs).leader = leader;
}

void SetTab(Interpreter& interpreter, const Argument& argument)
{
    QList<TabStop>& tabs = interpreter.Paragraph().tabs;
    const int position = argument.Within(-maxTwips, maxTwips);
    if (!tabs.isEmpty() && tabs.constLast().position == 0)
        tabs.last().position = position;
    else if (tabs.size() < maxTabs)
        tabs.append(TabStop{position});
}

template <Side side>
void SelectSide(Interpreter& interpreter, const Argument&)
{
    interpreter.Borders().Choose(interpreter.Paragraph().borders[side]);
}

template <BorderLine line>
void SetLine(Interpreter& interpreter, const Argument&)
{
    interpreter.Borders().Change([](Border& border) { border.line = line; });
}

void SetBorderWidth(Interpreter& interpreter, const Argument& argument)
{
    const int width = argument.Within(0, 255, 15);
    interpreter.Borders().Change([&](Border& border) { border.width = width; });
}

void SetBorderSpace(Interpreter& interpreter, const Argument& argument)
{
    constexpr int widest = 31 * 20; // points
    const int space = argument.Within(0, widest);
    interpreter.Borders().Change([&](Border& border) { border.space = space; });
}

void SetBorderColor(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Borders().Change([&](Border& border) { border.color = argument.value; });
}

FramePlace& Frame(Interpreter& interpreter)
{
    FramePlace& frame = interpreter.Paragraph().frame;
    frame.isSet = true;
    return frame;
}

void SetFrame(Interpreter& interpreter, const Argument&)
{
    Frame(interpreter);
}

void SetFrameLeft(Interpreter& interpreter, const Argument& argument)
{
    FramePlace& frame = Frame(interpreter);
    frame.across = FramePlace::Across::Left;
    frame.left = argument.Within(-maxTwips, maxTwips);
}

template <FramePlace::Across across>
void SetFrameAcross(Interpreter& interpreter, const Argument&)
{
    FramePlace& frame = Frame(interpreter);
    frame.across = across;
    frame.left = 0;
}

constexpr WordEntry paragraphEntries[] = {
    {"pard", [](Interpreter& r, const Argument&) { r.Styles().ResetParagraph(); }},
    {"s", [](Interpreter& r, const Argument& a) { r.Styles().ApplyToParagraph(a.value); }},
    {"ql", SetAlignment<Alignment::Left>},
    {"qr", SetAlignment<Alignment::Right>},
    {"qc", SetAlignment<Alignment::Center>},
    {"qj", SetAlignment<Alignment::Justify>},
    {"qd", SetAlignment<Alignment::Justify>},
    {"li", SetLength<&ParagraphState::leftIndent>},
    {"lin", SetLength<&ParagraphState::leftIndent>},
    {"ri", SetLength<&ParagraphState::rightIndent>},
    {"rin", SetLength<&ParagraphState::rightIndent>},
    {"fi", SetLength<&ParagraphState::firstIndent>},
    {"sb", SetSpace<&ParagraphState::spaceBefore>},
    {"sa", SetSpace<&ParagraphState::spaceAfter>},
    {"sl",
     [](Interpreter& r, const Argument& a) {
         // A thousand is the word processors' way to write "automatic".
         r.Paragraph().lineSpacing = a.value == 1000 ? 0 : a.Within(-maxTwips, maxTwips);
     }},
    {"slmult", SetParagraphFlag<&ParagraphState::lineMultiple>},
    {"keep", SetParagraphFlag<&ParagraphState::keepTogether>},
    {"keepn", SetParagraphFlag<&ParagraphState::keepWithNext>},
    {"pagebb", SetParagraphFlag<&ParagraphState::breakBefore>},
    {"rtlpar", [](Interpreter& r, const Argument&) { r.Paragraph().rightToLeft = true; }},
    {"ltrpar", [](Interpreter& r, const Argument&) { r.Paragraph().rightToLeft = false; }},
    {"cbpat", SetParagraphColor<&ParagraphState::background>},
    {"cfpat", SetParagraphColor<&ParagraphState::patternColor>},
    {"shading", [](Interpreter& r, const Argument& a) { r.Paragraph().shading = a.Within(0, 10000); }},
    {"tx", SetTab},
    {"tqr", SetTabType<QTextOption::RightTab>},
    {"tqc", SetTabType<QTextOption::CenterTab>},
    {"tqdec", SetTabType<QTextOption::DelimiterTab>},
    {"tldot", SetTabLeader<TabLeader::Dots>},
    {"tlmdot", SetTabLeader<TabLeader::MiddleDots>},
    {"tlhyph", SetTabLeader<TabLeader::Hyphens>},
    {"tlul", SetTabLeader<TabLeader::Line>},
    {"tlth", SetTabLeader<TabLeader::ThickLine>},
    {"tleq", SetTabLeader<TabLeader::DoubleLine>},
    {"ls", [](Interpreter& r, const Argument& a) { r.Paragraph().list = a.Within(0, 0x7fffffff); }},
    {"ilvl", [](Interpreter& r,
                const Argument& a) { r.Paragraph().listLevel = a.Within(0, ListTable::maxLevels - 1); }},
    {"absw", [](Interpreter& r, const Argument& a) { Frame(r).width = a.Within(0, maxTwips); }},
    {"absh", SetFrame},
    {"posx", SetFrameLeft},
    {"posnegx", SetFrameLeft},
    {"posxc", SetFrameAcross<FramePlace::Across::Center>},
    {"posxi", SetFrameAcross<FramePlace::Across::Left>},
    {"posxl", SetFrameAcross<FramePlace::Across::Left>},
    {"posxo", SetFrameAcross<FramePlace::Across::Right>},
    {"posxr", SetFrameAcross<FramePlace::Across::Right>},
    {"posy", SetFrame},
    {"posnegy", SetFrame},
    {"posyt", SetFrame},
    {"posyc", SetFrame},
    {"posyb", SetFrame},
    {"phpg", [](Interpreter& r, const Argument&) { Frame(r).fromPage = true; }},
    {"dropcapli",
     [](Interpreter& r, const Argument& a) { r.Paragraph().frame.initialLines = a.Within(0, 100); }},
    {"brdrt", SelectSide<SideTop>},
    {"brdrl", SelectSide<SideLeft>},
    {"brdrb", SelectSide<SideBottom>},
    {"brdrr", SelectSide<SideRight>},
    {"brdrbtw", [](Interpreter& r, const Argument&) { r.Borders().Choose(r.Paragraph().between); }},
    // A bar beside the text is not shown; the words behind it are its own.
    {"brdrbar", [](Interpreter& r, const Argument&) { r.Borders().ChooseNone(); }},
    {"box", [](Interpreter& r, const Argument&) { r.Borders().ChooseBox(); }},
    {"brdrs", SetLine<BorderLine::Solid>},
    {"brdrsh", SetLine<BorderLine::Solid>},
    {"brdrhair", SetLine<BorderLine::Solid>},
    {"brdrth", SetLine<BorderLine::Thick>},
    {"brdrdb", SetLine<BorderLine::Double>},
    {"brdrtriple", SetLine<BorderLine::Double>},
    {"brdrtnthsg", SetLine<BorderLine::Unequal>},
    {"brdrthtnsg", SetLine<BorderLine::Unequal>},
    {"brdrtnthmg", SetLine<BorderLine::Unequal>},
    {"brdrthtnmg", SetLine<BorderLine::Unequal>},
    {"brdrtnthlg", SetLine<BorderLine::Unequal>},
    {"brdrthtnlg", SetLine<BorderLine::Unequal>},
    {"brdrtnthtnsg", SetLine<BorderLine::Double>},
    {"brdrtnthtnmg", SetLine<BorderLine::Double>},
    {"brdrtnthtnlg", SetLine<BorderLine::Double>},
    {"brdrwavydb", SetLine<BorderLine::Double>},
    {"brdrdashdotstr", SetLine<BorderLine::Solid>},
    {"brdrdot", SetLine<BorderLine::Dotted>},
    {"brdrdash", SetLine<BorderLine::Dashed>},
    {"brdrdashsm", SetLine<BorderLine::Dashed>},
    {"brdrdashd", SetLine<BorderLine::DotDash>},
    {"brdrdashdd", SetLine<BorderLine::DotDotDash>},
    {"brdrwavy", SetLine<BorderLine::Solid>},
    {"brdremboss", SetLine<BorderLine::Ridge>},
    {"brdrengrave", SetLine<BorderLine::Groove>},
    {"brdrinset", SetLine<BorderLine::Inset>},
    {"brdroutset", SetLine<BorderLine::Outset>},
    {"brdrnone", SetLine<BorderLine::None>},
    {"brdrnil", SetLine<BorderLine::None>},
    {"brdrw", SetBorderWidth},
    {"brdrcf", SetBorderColor},
    {"brsp", SetBorderSpace},
};

} // namespace

std::span<const WordEntry> ParagraphWords()
{
    return paragraphEntries;
}

} // namespace torvik::rtf
