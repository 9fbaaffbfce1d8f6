#pragma once

namespace torvik {

/// Shows the next photo; after the last one, the first.
void SlideStepForward();
/// Shows the previous photo; before the first one, the last.
void SlideStepBack();

} // namespace torvik
