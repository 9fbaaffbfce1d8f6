#include "rtf/parts/paragraph_reader.h"

#include "rtf/bounds/limits.h"
#include "rtf/parts/shape_drawings.h"

#include <QTextDocument>

#include <algorithm>
#include <utility>

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
    looks.breakBefore = false;
    // The paragraphs of a table that has a place of its own carry it too.
    if (looks.tableDepth > 0)
        looks.frame = FramePlace();
    looks.tableDepth = 0;
    return looks;
}

} // namespace

void ParagraphReader::FinishDraft()
{
    PlaceDrawings(document_);
    ++document_.endedParagraphs;
    const ParagraphState& paragraph = document_.group.paragraph;
    Paragraph& draft = document_.flow.Draft();
    document_.bookmarks.EndParagraph(document_.TextPlace(), draft.text);
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
    draft.breakBefore = MayBeginPage() && (std::exchange(breakPending_, false) || paragraph.breakBefore);
}

/// Notes and boxes stand on the page of the text around them, whose break is still to come.
bool ParagraphReader::MayBeginPage() const
{
    return !document_.flow.InNote() && document_.flow.BoxDepth() == 0;
}

/// A large first letter is a paragraph of its own to the document, and the beginning of the next one to
/// the reader.
bool ParagraphReader::IsInitialLetter() const
{
    constexpr qsizetype longest = 8;
    const ParagraphState& paragraph = document_.group.paragraph;
    const Paragraph& draft = document_.flow.Draft();
    return paragraph.frame.initialLines > 0 && paragraph.tableDepth == 0 && !draft.IsEmpty() &&
           draft.text.size() <= longest;
}

int ParagraphReader::NestedDepth() const
{
    return std::max(2, document_.group.paragraph.tableDepth);
}

void ParagraphReader::EndParagraph()
{
    if (!document_.IsBody())
        return;
    if (IsInitialLetter()) {
        breakPending_ = breakPending_ || (MayBeginPage() && document_.group.paragraph.breakBefore);
        return;
    }
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

void ParagraphReader::EndDocument()
{
    if (!document_.flow.Draft().IsEmpty())
        EndParagraph();
    PlaceDrawings(document_);
    document_.flow.Finish(breakPending_ || document_.group.paragraph.breakBefore);
}

void ParagraphReader::BreakPage()
{
    if (!document_.IsBody() || document_.flow.InNote() || document_.group.paragraph.tableDepth > 0)
        return;
    if (!document_.flow.Draft().IsEmpty() || document_.flow.HasAnchored() || !document_.drawings.empty())
        EndParagraph();
    if (!MayBeginPage())
        return;
    document_.flow.EndTable();
    breakPending_ = true;
    ++document_.page.number;
}

void ParagraphReader::CancelBreak()
{
    if (breakPending_)
        --document_.page.number;
    breakPending_ = false;
}

void ParagraphReader::SetDefaultTab(int twips)
{
    QTextOption option = document_.document.defaultTextOption();
    option.setTabStopDistance(PixelsFromTwips(twips));
    document_.document.setDefaultTextOption(option);
}

} // namespace torvik::rtf
