#pragma once

namespace torvik {

/// Rebuilds the main window for the title in panYear: which buttons are enabled, which overlay pictures stay
/// and are loaded anew. Ends the slide show and the document viewer. `state.YearCode` is left as the title's
/// third and fourth character.
void RestoreMainWindow();

} // namespace torvik
