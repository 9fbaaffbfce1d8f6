#pragma once

namespace torvik {

/// Ties the buttons that open and close emblem, script and clip art, and the clicks on these pictures.
void BindEmblemAndScriptButtons();

} // namespace torvik
