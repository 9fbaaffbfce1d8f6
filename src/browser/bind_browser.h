#pragma once

namespace torvik {

/// Ties all handlers of this room to their controls; once, before the first form is touched.
void BindBrowser();

// The parts of it, each at the end of the file of its handlers.
/// Ties the year buttons to their handlers.
void BindYearButtons();
/// Ties the keys and arrow buttons that step the photos to their handlers.
void BindNextAndPreviousPhoto();
/// Ties the mouse on the photo to what it does: the left button walks on to the next year or topic, the
/// right one opens the saver's play list.
void BindPhotoClick();
/// Ties the menu entry and the text box that show and hide the file name of the photo.
void BindShowFileNames();
/// Ties the buttons that open and close emblem, script and clip art, and the clicks on these pictures.
void BindEmblemAndScriptButtons();

} // namespace torvik
