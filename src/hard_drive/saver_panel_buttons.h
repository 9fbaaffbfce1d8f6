#pragma once

namespace torvik {

/// Ties the menu entry and the panel that install the screen saver to their handlers.
void BindSaverPanelButtons();

} // namespace torvik
