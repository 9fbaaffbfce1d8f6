#pragma once

namespace torvik {

/// Shows the next photo, behind the last one the first.
void SlideStepForward();
/// Shows the photo before, before the first one the last.
void SlideStepBack();

} // namespace torvik
