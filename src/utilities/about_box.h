#pragma once

namespace torvik {

/// Ties the about box, its menu entry, and the two ways to the maker's web site.
void BindAboutBox();

} // namespace torvik
