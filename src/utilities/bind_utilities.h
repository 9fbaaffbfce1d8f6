#pragma once

namespace torvik {

/// Ties all handlers of this room to their controls; once, before the first form is touched.
void BindUtilities();

// The parts of it, each at the end of the file of its handlers.
/// Ties the menu entry that hides and shows the task bar; its caption is the state of the toggle.
void BindHideTaskBar();
/// Ties the menu entry that tells whether the display has the size that the main window was drawn for.
void BindDisplayCheck();
/// Ties the menu entry for it.
void BindSystemInformation();
/// Ties the about box, its menu entry, and the two ways to the maker's web site.
void BindAboutBox();
/// Ties the menu entry that opens the help file.
void BindHelpMenu();

} // namespace torvik
