#pragma once

namespace torvik {

/// The panel of sound effects and the menu entry that opens it.
void BindSoundPanelButtons();

} // namespace torvik
