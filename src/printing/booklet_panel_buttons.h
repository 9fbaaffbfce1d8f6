#pragma once

namespace torvik {

/// Ties the menu entry that opens the booklet panel, and the panel's boxes and buttons, to their handlers.
void BindBookletPanelButtons();

} // namespace torvik
