#pragma once

namespace torvik {

/// Ties all handlers of this room to their controls; once, before the first form is touched.
void BindSlides();

// The parts of it, each at the end of the file of its handlers.
/// Ties the button of the main window that opens the slide show.
void BindOpenSlideShow();
/// Ties the buttons of the bar and the keys that go to another photo.
void BindSlideSteps();
/// Ties what runs the slide show by itself: Play, Pause, the timer, the delay.
void BindSlideTimer();
/// Ties the clock strip of the slide show.
void BindSlideClock();
/// Ties what brings the focus of the slide show back to "Beginning", the one control that has keys.
void BindSlideKeyboardFocus();
/// Ties the coming up and the ways out of the slide show.
void BindLeaveSlideShow();

} // namespace torvik
