#pragma once

namespace torvik {

/// Ties the handlers of frmSSPhoto to its controls.
void BindPlayList();

} // namespace torvik
