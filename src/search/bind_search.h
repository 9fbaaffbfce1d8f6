#pragma once

namespace torvik {

/// Ties all handlers of this room to their controls; once, before the first form is touched.
void BindSearch();

// The parts of it, each at the end of the file of its handlers.
/// Ties Ctrl+F in the main window to the form that finds words, and that form to its handlers.
void BindFindForm();

} // namespace torvik
