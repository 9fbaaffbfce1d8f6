#pragma once

#include "rtf/fields/bookmark_texts.h"
#include "rtf/fields/field_instruction.h"
#include "rtf/fields/form_field.h"
#include "rtf/fields/stored_time.h"

#include <QDateTime>
#include <QHash>
#include <QString>

#include <optional>

namespace torvik::rtf {

/// What fields without a stored result can be made from.
struct FieldSurroundings {
    explicit FieldSurroundings(BookmarkTexts& texts) : bookmarks(texts) {}

    BookmarkTexts& bookmarks;
    QDateTime now;
    /// The page that the field is on, and how many there are; from 1.
    int page = 1;
    int pages = 1;
    /// As the document tells them; none where it does not.
    std::optional<int> words;
    std::optional<int> characters;
    /// What the document tells about itself: "title", "author" and the like.
    QHash<QString, QString> information;
    /// When the document was made, changed and printed: "creatim", "revtim" and "printim".
    QHash<QString, StoredTime> times;
    /// The last number of every sequence.
    QHash<QString, int> sequences;
};

/// The text of a field whose document stores none, as it can be told without asking anybody; empty for fields
/// that show nothing. Numbers of sequences are counted on.
QString ResultOf(const FieldInstruction& instruction, const FormField& form, FieldSurroundings& surroundings);

} // namespace torvik::rtf
