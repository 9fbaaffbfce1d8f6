#pragma once

#include <QTextFormat>

namespace torvik::rtf {

/// What formats of a document that was read tell beyond what Qt knows. The numbers stand together so that no
/// two are alike.
enum FormatProperty : int {
    /// True in the format of a paragraph that is to stand on one page. Lines that Qt calls unbreakable are
    /// never wrapped.
    keepTogetherProperty = QTextFormat::UserProperty + 1,
    /// True in that of one that is to end on the page on which the next one begins.
    keepWithNextProperty,
    /// In the format of a cell: how high its row is to be at least, pixels.
    rowHeightProperty,
    /// In the format of a paragraph: what fills the room before each of its tab stops, one TabLeader for each
    /// stop in their order.
    tabLeadersProperty,
    /// In the format of a paragraph: a short rule stands in the room above it, which parts the notes from the
    /// text.
    ruleAboveProperty,
    /// In the format of characters that Qt underlines once: the other line that they are to have.
    underlineProperty,
    /// True in the format of characters that Qt strikes out once: they are to be struck out twice.
    doubleStrikeProperty,
    /// In the format of characters with a bookmark: its number. Qt finds a format by the hash of its numbers
    /// and texts, where all lists of names count alike.
    bookmarkNumberProperty
};

} // namespace torvik::rtf
