#pragma once

namespace torvik {

/// Ties the button of the main window that opens the slide show.
void BindOpenSlideShow();

} // namespace torvik
