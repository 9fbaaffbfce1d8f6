#pragma once

#include <QTextFormat>

namespace torvik::rtf {

/// What formats of a document that was read tell beyond what Qt knows. The numbers stand together so that no
/// two are alike.
enum FormatProperty : int {
    /// True in the format of a paragraph that is to stand on one page. Lines that Qt calls unbreakable are
    /// never wrapped.
    KeepTogetherProperty = QTextFormat::UserProperty + 1,
    /// True in that of one that is to end on the page on which the next one begins.
    KeepWithNextProperty,
    /// In the format of a cell: how high its row is to be at least, pixels.
    RowHeightProperty,
    /// In the format of a paragraph: what fills the room before each of its tab stops, one TabLeader for each
    /// stop in their order.
    TabLeadersProperty,
    /// In the format of a paragraph: a short rule stands in the room above it, which parts the notes from the
    /// text.
    RuleAboveProperty,
    /// In the format of characters that Qt underlines once: the other line that they are to have.
    UnderlineProperty,
    /// True in the format of characters that Qt strikes out once: they are to be struck out twice.
    DoubleStrikeProperty,
    /// In the format of characters that cast a shadow: where that falls, a LetterShadow.
    ShadowProperty,
    /// In the format of characters with a bookmark: its number. Qt finds a format by the hash of its numbers
    /// and texts, where all lists of names count alike.
    BookmarkNumberProperty
};

} // namespace torvik::rtf
