#pragma once

namespace torvik {

/// Opens the copy panel for photos or movies, as `state.CopyingPhotos` says, with both buttons enabled; when
/// there is too little room on the drive shows a message instead, and the panel stays hidden. The panel's
/// copy sets `state.CopyForSaver` to False when it has run to its end; Cancel, a declined copy and the
/// message leave it as it is.
void ShowCopyPanel();

} // namespace torvik
