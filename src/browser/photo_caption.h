#pragma once

namespace torvik {

/// Shows the caption document of the photo at `state.PhotoIndex` in rtbDetails and puts the pane on the
/// photo. Failures are those of loading the document.
void LoadPhotoDetails();

/// The same for a cursor that stands one below the photo on show, as after a step backward, and stays there
/// whatever fails. The letter case of the name stays, and SteppedForward is cleared.
void LoadPhotoDetailsBackward();

/// Brings rtbDetails to the front in the size of a caption or note, and puts it on the photo.
void PrepareDetails();

/// Opens rtbDetails with the caption of the photo on show, at `state.PhotoIndex`. Failures are those of
/// loading it; the pane is then hidden.
void ShowPhotoDetails();

/// Puts rtbDetails on the photo: its right edge 10 pixels inside that of cmdAd.
void PlaceDetails();

} // namespace torvik
