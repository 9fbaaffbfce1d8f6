#pragma once

namespace torvik {

/// Ties the menu entry and the text box that show and hide the file name of the photo.
void BindShowFileNames();

} // namespace torvik
