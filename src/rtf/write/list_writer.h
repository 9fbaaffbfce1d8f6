#pragma once

#include "rtf/model/list_mark.h"

#include <QTextCursor>
#include <QTextList>

#include <map>
#include <tuple>

namespace torvik::rtf {

/// Puts paragraphs into the lists of a document. A list counts from 1 in steps of 1; a paragraph whose
/// number does not fit that keeps it as text.
class ListWriter {
public:
    enum class Place { Outside, Continues, Starts };

    /// Where the next paragraph stands, given its mark.
    Place Join(const ListMark& mark);
    /// The object index of the list that the mark continues; valid after Join said so. `room` is that of the
    /// mark (see mark_room.h).
    int Continue(const ListMark& mark, double room);
    /// Starts a list with the cursor's block.
    void Start(const ListMark& mark, double room, QTextCursor& cursor);
    /// Something comes between the list so far and what follows.
    void Interrupt() { previousWasItem_ = false; }

private:
    using Key = std::tuple<ListKey, int, int, bool>; ///< list, level, style, direction
    struct Open {
        QTextList* list = nullptr;
        int value = 0;
        /// Between the numbers and the text: as many as the widest number leaves room for.
        int spaces = 0;
        QString before;
        QString after;
    };
    static Key KeyOf(const ListMark& mark)
    {
        return {mark.listKey, mark.level, mark.style, mark.rightToLeft};
    }
    std::map<Key, Open> open_;
    bool previousWasItem_ = false;
};

} // namespace torvik::rtf
