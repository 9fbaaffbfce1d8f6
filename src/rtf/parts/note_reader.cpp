#include "rtf/parts/note_reader.h"

#include <utility>

namespace torvik::rtf {

bool NoteReader::MayBegin() const
{
    return document_.IsBody() && !document_.flow.InNote() && document_.group.destination != Destination::Note;
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
    if (!document_.flow.InNote())
        ++count_;
    return QString::number(count_);
}

} // namespace torvik::rtf
