#pragma once

namespace torvik {

/// Ties what runs the slide show by itself: Play, Pause, the timer, the delay.
void BindSlideTimer();

} // namespace torvik
