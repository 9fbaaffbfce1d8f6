#include "rtf/parts/paragraph_reader.h"

#include "rtf/bounds/limits.h"

#include <QTextDocument>

#include <algorithm>

namespace torvik::rtf {

namespace {

/// The looks of a paragraph alone, without what places it in the document.
ParagraphState LooksOf(const ParagraphState& paragraph)
{
    ParagraphState looks = paragraph;
    looks.list = 0;
    looks.listLevel = 0;
    looks.numbering = ParagraphNumbering();
    looks.style = 0;
    looks.tableDepth = 0;
    return looks;
}

} // namespace

void ParagraphReader::FinishDraft()
{
    const ParagraphState& paragraph = document_.group.paragraph;
    Paragraph& draft = document_.flow.Draft();
    draft.mark = counter_.MarkOf(paragraph, mark_);
    mark_.resize(0);
    ParagraphState looks = LooksOf(paragraph);
    draft.format = document_.formats.Paragraph(looks);
    draft.itemFormat = draft.format;
    const bool isItem =
        draft.mark.kind == ListMark::Kind::Bullet || draft.mark.kind == ListMark::Kind::Number;
    if (isItem) {
        looks.markOutside = true;
        draft.itemFormat = document_.formats.Paragraph(looks);
    } else if (draft.mark.kind == ListMark::Kind::None) {
        draft.mark.literal.clear();
    }
    draft.endFormat = looks_.Format();
    draft.breakBefore = breakPending_;
    breakPending_ = false;
}

int ParagraphReader::NestedDepth() const
{
    return std::max(2, document_.group.paragraph.tableDepth);
}

void ParagraphReader::EndParagraph()
{
    if (!document_.IsBody())
        return;
    FinishDraft();
    document_.flow.EndParagraph(document_.group.paragraph.tableDepth);
}

void ParagraphReader::EndCell(bool nested)
{
    if (!document_.IsBody())
        return;
    FinishDraft();
    document_.flow.EndCell(nested ? NestedDepth() : 1);
}

void ParagraphReader::EndRow(bool nested)
{
    if (!document_.IsBody())
        return;
    if (!document_.flow.Draft().IsEmpty())
        EndCell(nested);
    document_.flow.EndRow(nested ? NestedDepth() : 1);
}

void ParagraphReader::BreakPage()
{
    if (!document_.IsBody() || document_.flow.InNote() || document_.group.paragraph.tableDepth > 0)
        return;
    if (!document_.flow.Draft().IsEmpty())
        EndParagraph();
    breakPending_ = true;
}

void ParagraphReader::SetDefaultTab(int twips)
{
    QTextOption option = document_.document.defaultTextOption();
    option.setTabStopDistance(PixelsFromTwips(twips));
    document_.document.setDefaultTextOption(option);
}

} // namespace torvik::rtf
