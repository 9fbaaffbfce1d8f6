#pragma once

#include "rtf/model/list_mark.h"
#include "rtf/model/list_table.h"
#include "rtf/model/paragraph_state.h"

#include <array>
#include <map>

namespace torvik::rtf {

/// Finds the mark of every paragraph, and counts the paragraphs of lists whose numbers are not written out.
class ListCounter {
public:
    explicit ListCounter(const ListTable& lists);

    /// The mark of a paragraph. `written` is the text of the mark as the document gives it, empty when it
    /// does not.
    ListMark MarkOf(const ParagraphState& paragraph, const QString& written);

private:
    using Values = std::array<int, ListTable::maxLevels>;

    Values& ValuesOf(int list);
    ListMark CountedMark(const ParagraphState& paragraph);
    int NextNumber(const ParagraphNumbering& numbering);
    void Count(const ParagraphState& paragraph, Values& values) const;
    /// Whether a level goes on counting after a number of a level above it.
    bool GoesOn(int list, int level) const;

    const ListTable& lists_;
    /// The last numbers of each list, level by level; -1 for none yet.
    std::map<ListKey, Values> values_;
    /// Those of the older kind.
    std::array<int, ListTable::maxLevels + 3> numbering_;
};

} // namespace torvik::rtf
