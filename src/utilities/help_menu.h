#pragma once

namespace torvik {

/// Ties the menu entry that opens the help file.
void BindHelpMenu();

} // namespace torvik
