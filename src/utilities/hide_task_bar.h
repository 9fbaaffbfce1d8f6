#pragma once

namespace torvik {

/// Ties the menu entry that hides and shows the task bar; its caption is the state of the toggle.
void BindHideTaskBar();

} // namespace torvik
