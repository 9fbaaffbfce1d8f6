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
    const QString number = isNumbered_ ? QString::number(++count_) : QString();
    if (isNumbered_)
        document_.flow.Draft().Append(number, RaisedFormat());
    document_.flow.BeginNote();
    if (isNumbered_)
        document_.flow.Draft().Append(number + QChar(u' '), RaisedFormat());
    hasReference_ = false;
}

void NoteReader::End(const GroupState& ended)
{
    if (!document_.flow.Draft().IsEmpty()) {
        const GroupState around = std::exchange(document_.group, ended);
        document_.group.paragraph.frame.initialLines = 0;
        paragraphs_.EndParagraph();
        document_.group = around;
    }
    document_.flow.EndNote();
}

void NoteReader::EndUnfinished()
{
    if (!document_.flow.InNote())
        return;
    if (!document_.flow.Draft().IsEmpty())
        paragraphs_.EndParagraph();
    document_.flow.EndNote();
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
