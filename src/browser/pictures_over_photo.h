#pragma once

namespace torvik {

/// Load the emblem, script or clip art of the title in panYear and put it in its place over the photo.
/// Emblem and script are shown; a failure leaves them hidden and is reported (ER022, ER021). The clip art
/// keeps its visibility, and a failure leaves its old picture and is reported (ER024), unless it is the one
/// in `state.MissingClipArt`: since the pane stays open, each rebuilding of the window asks for it again.
void LoadEmblem();
void LoadScript();
void LoadClipArt();

/// Puts the clip art that is loaded in its place, the upper right corner of the photo.
void PlaceClipArt();

} // namespace torvik
