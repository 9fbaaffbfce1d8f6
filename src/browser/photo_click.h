#pragma once

namespace torvik {

/// Ties the mouse on the photo to its two deeds: the left button walks on to the next year or topic, the
/// right one opens the saver's play list.
void BindPhotoClick();

} // namespace torvik
