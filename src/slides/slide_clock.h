#pragma once

namespace torvik {

/// Ties the clock strip of the slide show.
void BindSlideClock();

} // namespace torvik
