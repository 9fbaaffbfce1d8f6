#pragma once

namespace torvik {

/// Ties all handlers of this room to their controls; once, before the first form is touched.
void BindPrinting();

// The parts of it, each at the end of the file of its handlers.
/// Ties the menu entry that opens the booklet panel, and the panel's boxes and buttons, to their handlers.
void BindBookletPanelButtons();
/// Ties the menu entries that print the photo on show and that set the printer up to their handlers.
void BindPrintPhotoAndSetup();

} // namespace torvik
