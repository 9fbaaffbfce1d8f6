#pragma once

namespace torvik {

/// Shows the next photo, behind the last one the first.
void SlideStepForward();
/// Shows the photo before, before the first one the last.
void SlideStepBack();

/// Ties the buttons of the bar and the keys that go to another photo.
void BindSlideSteps();

} // namespace torvik
