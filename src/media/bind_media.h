#pragma once

namespace torvik {

/// Ties all handlers of this room to their controls; once, before the first form is touched.
void BindMedia();

// The parts of it, each at the end of the file of its handlers.
/// The panel of sound effects and the menu entry that opens it.
void BindSoundPanelButtons();
/// The Movies entry of the main menu and the form that plays them.
void BindMoviePlayer();
/// The entry of the main menu that offers the driver of the movies.
void BindVideoDriverOffer();

} // namespace torvik
