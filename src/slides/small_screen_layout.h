#pragma once

namespace torvik {

/// Moves what lies on frmSlide, as it is at design, into the upper left of it, where a display of 640 by 480
/// pixels shows it.
void LayOutForSmallScreen();

} // namespace torvik
