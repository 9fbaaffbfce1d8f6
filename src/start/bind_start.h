#pragma once

namespace torvik {

/// Ties all handlers of this room to their controls; once, before the first form is touched.
void BindStart();

// The parts of it, each at the end of the file of its handlers.
/// Ties the splash window to its handlers: its Load starts the program, its timer hands over to Form1.
void BindStartUp();
/// Ties the life of the main window to its handlers: loading, first activation, resizing, closing.
void BindMainWindowLife();

} // namespace torvik
