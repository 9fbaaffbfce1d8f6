#pragma once

#include <QString>

namespace torvik {

/// The file by which the photo on show is on the saver's play list, whether it exists or not. Refreshes
/// `state.TorviksPathPos` where a photo of the disc is on show.
QString PlayListEntry();

/// Lets the two buttons of frmSSPhoto follow the photo on show, whether or not that form is on the screen.
void UpdatePlayListButtons();

} // namespace torvik
