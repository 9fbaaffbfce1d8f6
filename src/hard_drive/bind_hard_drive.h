#pragma once

namespace torvik {

/// Ties all handlers of this room to their controls; once, before the first form is touched.
void BindHardDrive();

// The parts of it, each at the end of the file of its handlers.
/// Ties the handlers of the copy panel and of its two menu entries.
void BindCopyPhotosAndMovies();
/// Ties the handlers of the two menu entries that remove what was copied to the hard drive.
void BindRemoveCopies();
/// Ties the handlers of frmSSPhoto to its controls.
void BindPlayList();
/// Ties the menu entry and the panel that install the screen saver to their handlers.
void BindSaverPanelButtons();

} // namespace torvik
