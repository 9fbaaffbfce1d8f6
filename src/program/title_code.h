#pragma once

namespace torvik {

/// Sets `state.YearCode` to the code of the topic that panYear of the main window names; a year, or a title
/// without photos of its own, leaves it as it is.
void TakeCodeOfTitle();

} // namespace torvik
