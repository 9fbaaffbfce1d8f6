#pragma once

namespace torvik {

/// The Movies entry of the main menu and the form that plays them.
void BindMoviePlayer();

} // namespace torvik
