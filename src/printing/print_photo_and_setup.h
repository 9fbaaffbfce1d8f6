#pragma once

namespace torvik {

/// Ties the menu entries that print the photo on show and that set the printer up to their handlers.
void BindPrintPhotoAndSetup();

} // namespace torvik
