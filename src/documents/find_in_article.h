#pragma once

namespace torvik {

/// Searches the viewer's text for `state.TextToFind`, which is cleared: opens the bar, marks what is found
/// and scrolls to the first of it. Where there is nothing to find, or none of it in the text, nothing
/// happens.
void FindWhatWasAskedFor();

} // namespace torvik
