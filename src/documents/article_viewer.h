#pragma once

namespace torvik {

// The document viewer reads its window title from `state.DocumentTitle` when it loads, that is at the first
// touch of it or of one of its controls; a viewer that is loaded already keeps the title that it has. Whoever
// opens a document therefore chooses: set DocumentTitle before the first touch, or set the caption of
// txtForm.

/// Disables and hides the two wave buttons.
void PutWaveButtonsAway();

/// Gives the OK button the room up to the print button.
void WidenOkButton();

/// Loads `state.DocumentFile` into the viewer, settles its buttons and shows it; returns when it was closed.
/// Failures are those of loading the document; the viewer is then loaded and hidden.
void OpenViewer();

} // namespace torvik
