#pragma once

namespace torvik {

/// Ties the menu entry that tells whether the display has the size that the main window was drawn for.
void BindDisplayCheck();

} // namespace torvik
