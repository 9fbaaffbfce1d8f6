#pragma once

namespace torvik {

/// Ties what brings the focus of the slide show back to "Beginning", the one control that has keys.
void BindSlideKeyboardFocus();

} // namespace torvik
