#include "rtf/write/list_writer.h"

namespace torvik::rtf {

ListWriter::Place ListWriter::Join(const ListMark& mark)
{
    if (mark.kind == ListMark::Kind::None || mark.kind == ListMark::Kind::Literal) {
        Interrupt();
        return Place::Outside;
    }
    const auto known = open_.find(KeyOf(mark));
    const bool isOpen = known != open_.end() && known->second.list != nullptr;
    const bool isNumber = mark.kind == ListMark::Kind::Number;
    const bool continues = isOpen && (isNumber ? mark.value == known->second.value + 1 : previousWasItem_);
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

int ListWriter::IndexOf(const ListMark& mark) const
{
    return open_.at(KeyOf(mark)).list->objectIndex();
}

void ListWriter::Start(const ListMark& mark, QTextCursor& cursor)
{
    QTextListFormat format;
    format.setStyle(mark.style);
    // The paragraph's own indent places the item.
    format.setIndent(0);
    if (mark.kind == ListMark::Kind::Number) {
        format.setNumberPrefix(mark.before);
        format.setNumberSuffix(mark.after);
    }
    open_[KeyOf(mark)] = {cursor.createList(format), mark.value};
}

} // namespace torvik::rtf
