#include "rtf/parts/note_reader.h"

#include <utility>

namespace torvik::rtf {

bool NoteReader::MayBegin() const
{
    return document_.IsBody() && !document_.flow.InNote() && document_.group.destination != Destination::Note;
}

/// A mark of the author's own stands right before its note: raised, or one of the usual signs.
bool NoteReader::HasMark() const
{
    const Paragraph& draft = document_.flow.Draft();
    if (hasReference_ || document_.group.character.script == Script::Super)
        return true;
    if (draft.IsEmpty() || draft.spans.empty())
        return false;
    const QTextCharFormat& before = document_.formats.CharacterFormat(draft.spans.back().format);
    return before.verticalAlignment() == QTextCharFormat::AlignSuperScript ||
           QStringLiteral("*†‡§¶").contains(draft.text.back());
}

int NoteReader::RaisedFormat()
{
    CharacterState raised = document_.group.character;
    raised.script = Script::Super;
    return document_.formats.Character(raised);
}

void NoteReader::Begin()
{
    isNumbered_ = !HasMark() && !document_.group.character.hidden;
    hasReference_ = false;
    document_.flow.BeginNote();
    if (isNumbered_)
        document_.flow.Draft().Append(QString::number(++count_) + QChar(u' '), RaisedFormat());
    ownLength_ = document_.flow.Draft().text.size();
    ownParagraphs_ = document_.endedParagraphs;
}

void NoteReader::End(const GroupState& ended)
{
    const GroupState around = std::exchange(document_.group, ended);
    document_.group.paragraph.frame.initialLines = 0;
    EndText();
    document_.group = around;
    CloseNote();
}

void NoteReader::EndUnfinished()
{
    if (!document_.flow.InNote())
        return;
    EndText();
    CloseNote();
}

/// A note without words takes its number back.
void NoteReader::EndText()
{
    Paragraph& draft = document_.flow.Draft();
    if (isNumbered_ && draft.text.size() == ownLength_ && document_.endedParagraphs == ownParagraphs_) {
        draft.ClearText();
        isNumbered_ = false;
        --count_;
    }
    if (!draft.IsEmpty())
        paragraphs_.EndParagraph();
}

void NoteReader::CloseNote()
{
    document_.flow.EndNote();
    if (isNumbered_)
        document_.flow.Draft().Append(QString::number(count_), RaisedFormat());
    isNumbered_ = false;
}

QString NoteReader::Reference()
{
    if (!document_.IsBody())
        return {};
    if (document_.flow.InNote())
        return isNumbered_ ? QString() : QString::number(count_);
    hasReference_ = true;
    return QString::number(++count_);
}

} // namespace torvik::rtf
