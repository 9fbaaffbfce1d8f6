#pragma once

namespace torvik {

/// Ties the coming up and the ways out of the slide show.
void BindLeaveSlideShow();

} // namespace torvik
