#pragma once

#include "rtf/parts/group_state.h"
#include "rtf/read/tokenizer.h"

#include <string_view>

namespace torvik::rtf {

// How the text of a document is found again after a brace too many or too few.

/// Whether a destination is one of the tables at a document's head.
bool IsHeaderTable(Destination destination);

/// Whether a word in such a table or in a drawn object can only belong to the text, so that something was
/// lost in front of it. `isOutside` for between the entries of a table.
bool BeginsText(std::string_view word, bool isOutside);

/// Whether a brace closed the document by mistake: paragraphs follow it that belong to no other document.
bool ParagraphsFollow(Tokenizer ahead);

} // namespace torvik::rtf
