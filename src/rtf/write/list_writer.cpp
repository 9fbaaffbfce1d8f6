#include "rtf/write/list_writer.h"

#include "rtf/write/mark_room.h"

namespace torvik::rtf {

namespace {

/// What stands around a number, and spaces between it and the text. Qt puts the suffix first where the text
/// runs from the right, and then lays it out from the right as well.
void SetAround(QTextListFormat& format, const ListMark& mark, int spaces)
{
    const QString after = mark.after + QString(spaces, QChar(QChar::Nbsp));
    format.setNumberPrefix(mark.rightToLeft ? after : mark.before);
    format.setNumberSuffix(mark.rightToLeft ? mark.before : after);
}

int SpacesAfter(const ListMark& mark, double room)
{
    return mark.kind == ListMark::Kind::Number ? SpacesAfterNumber(mark.literal, room) : 0;
}

} // namespace

ListWriter::Place ListWriter::Join(const ListMark& mark)
{
    if (mark.kind == ListMark::Kind::None || mark.kind == ListMark::Kind::Literal) {
        Interrupt();
        return Place::Outside;
    }
    const auto known = open_.find(KeyOf(mark));
    const bool isOpen = known != open_.end() && known->second.list != nullptr;
    const bool isNumber = mark.kind == ListMark::Kind::Number;
    const auto isNextNumber = [&](const Open& open) {
        return mark.value == open.value + 1 && mark.before == open.before && mark.after == open.after;
    };
    const bool continues = isOpen && (isNumber ? isNextNumber(known->second) : previousWasItem_);
    if (!continues && isNumber && mark.value != 1) {
        Interrupt();
        return Place::Outside;
    }
    previousWasItem_ = true;
    if (!continues)
        return Place::Starts;
    known->second.value = mark.value;
    return Place::Continues;
}

int ListWriter::Continue(const ListMark& mark, double room)
{
    Open& open = open_.at(KeyOf(mark));
    const int spaces = SpacesAfter(mark, room);
    if (spaces < open.spaces) {
        open.spaces = spaces;
        QTextListFormat format = open.list->format();
        SetAround(format, mark, spaces);
        open.list->setFormat(format);
    }
    return open.list->objectIndex();
}

void ListWriter::Start(const ListMark& mark, double room, QTextCursor& cursor)
{
    QTextListFormat format;
    format.setStyle(mark.style);
    // The paragraph's own indent places the item.
    format.setIndent(0);
    const int spaces = SpacesAfter(mark, room);
    if (mark.kind == ListMark::Kind::Number)
        SetAround(format, mark, spaces);
    open_[KeyOf(mark)] = {cursor.createList(format), mark.value, spaces, mark.before, mark.after};
}

} // namespace torvik::rtf
