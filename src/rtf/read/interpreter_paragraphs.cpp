#include "rtf/bounds/limits.h"
#include "rtf/read/interpreter.h"

#include <QTextDocument>

#include <algorithm>

// How the reader ends paragraphs, cells, rows and pages.

namespace torvik::rtf {

void Interpreter::FinishDraft()
{
    FlushText();
    Paragraph& draft = flow_.Draft();
    draft.mark = counter_.MarkOf(state_.paragraph, mark_);
    mark_.resize(0);
    // What places the paragraph in the document is no part of its looks.
    ParagraphState looks = state_.paragraph;
    looks.list = 0;
    looks.listLevel = 0;
    looks.numbering = ParagraphNumbering();
    looks.style = 0;
    looks.tableDepth = 0;
    draft.format = formats_.Paragraph(looks);
    draft.itemFormat = draft.format;
    const bool isItem =
        draft.mark.kind == ListMark::Kind::Bullet || draft.mark.kind == ListMark::Kind::Number;
    if (isItem) {
        looks.markOutside = true;
        draft.itemFormat = formats_.Paragraph(looks);
    } else if (draft.mark.kind == ListMark::Kind::None) {
        draft.mark.literal.clear();
    }
    draft.endFormat = CurrentFormat();
    draft.breakBefore = breakPending_;
    breakPending_ = false;
}

void Interpreter::EndParagraph()
{
    if (!IsBody())
        return;
    FinishDraft();
    flow_.EndParagraph(state_.paragraph.tableDepth);
}

void Interpreter::EndCell(bool nested)
{
    if (!IsBody())
        return;
    FinishDraft();
    flow_.EndCell(nested ? std::max(2, state_.paragraph.tableDepth) : 1);
}

void Interpreter::EndRow(bool nested)
{
    if (!IsBody())
        return;
    FlushText();
    if (!flow_.Draft().IsEmpty())
        EndCell(nested);
    flow_.EndRow(nested ? std::max(2, state_.paragraph.tableDepth) : 1);
}

void Interpreter::BreakPage()
{
    if (!IsBody() || flow_.InNote() || state_.paragraph.tableDepth > 0)
        return;
    FlushText();
    if (!flow_.Draft().IsEmpty())
        EndParagraph();
    breakPending_ = true;
}

void Interpreter::BeginMark()
{
    if (!IsBody())
        return Skip();
    Enter(Destination::Mark);
    mark_.clear();
}

void Interpreter::ResetCharacter()
{
    const CharacterState before = state_.character;
    state_.character = CharacterState();
    state_.character.link = before.link;
    SetFont(defaultFont_);
    beforeStyle_ = state_.character;
}

void Interpreter::LeaveParagraphStyle()
{
    if (state_.paragraph.style == 0)
        return;
    const int link = state_.character.link;
    state_.character = beforeStyle_;
    state_.character.link = link;
    SetFont(beforeStyle_.font);
}

void Interpreter::ApplyParagraphStyle(int number)
{
    LeaveParagraphStyle();
    beforeStyle_ = state_.character;
    const StyleWords* style = SpellsLooksOut() ? nullptr : styles_.OfParagraph(number);
    state_.paragraph.style = style != nullptr ? number : 0;
    if (style != nullptr)
        ApplyStyle(*style);
}

/// Looks ahead as far as the words go that stand before the text.
bool Interpreter::SpellsLooksOut() const
{
    constexpr int mostWords = 32;
    Tokenizer ahead = tokens_;
    for (int i = 0; i < mostWords; ++i) {
        const Token token = ahead.Next();
        if (token.kind != TokenKind::Word)
            return false;
        if (IsLook(FindWord(WordScope::Text, token.text)))
            return true;
    }
    return false;
}

void Interpreter::ApplyStyle(const StyleWords& style)
{
    for (const StyleWord& look : style)
        look.word->apply(*this, look.argument);
    SelectBorder(nullptr);
}

void Interpreter::ApplyCharacterStyle(int number)
{
    const StyleWords* style = styles_.OfCharacter(number);
    if (style != nullptr && !SpellsLooksOut())
        ApplyStyle(*style);
}

void Interpreter::ResetParagraph()
{
    LeaveParagraphStyle();
    state_.paragraph = ParagraphState();
    SelectBorder(nullptr);
}

void Interpreter::SetFont(int number)
{
    state_.character.font = number;
    state_.page = &fonts_.PageOf(number, documentPage_);
}

void Interpreter::SetDocumentPage(int number)
{
    documentPage_ = number;
    state_.page = &fonts_.PageOf(state_.character.font, documentPage_);
}

void Interpreter::SetDefaultFont(int number)
{
    defaultFont_ = number;
    SetFont(number);
}

void Interpreter::SetDefaultTab(int twips)
{
    QTextOption option = document_.defaultTextOption();
    option.setTabStopDistance(PixelsFromTwips(twips));
    document_.setDefaultTextOption(option);
}

} // namespace torvik::rtf
