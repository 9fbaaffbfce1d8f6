#pragma once

namespace torvik {

/// Shows the caption document of the photo at `state.PhotoIndex` in rtbDetails and puts the pane on the
/// photo. Failures are those of loading the document.
void LoadPhotoDetails();

/// The same for a cursor that stands one below the photo on show, as after a step backward, and stays there
/// whatever fails. The letter case of the name stays, and SteppedForward is cleared.
void LoadPhotoDetailsBackward();

/// Puts rtbDetails on the photo: its right edge 10 pixels inside that of cmdAd.
void PlaceDetails();

} // namespace torvik
