#pragma once

#include <cstdint>

namespace torvik {

class RichTextBox;

/// Prints the whole text of a pane and ends the job; a job that is open already is continued on its present
/// page. The margins are twips of the paper. Failures: 482 of the printer, and 5 when the margins leave no
/// room.
void PrintRichText(const RichTextBox& control, std::int32_t left, std::int32_t top, std::int32_t right,
                   std::int32_t bottom);

} // namespace torvik
