#pragma once

namespace torvik {

/// Shows what of the full-size view of frmScroll is hidden, its two scroll bars and two panes each by itself,
/// and hides what is shown.
void TurnFullSizeViewOver();

} // namespace torvik
