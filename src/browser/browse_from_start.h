#pragma once

namespace torvik {

/// Sets the stepping back to its start, as every selection does: cursor 0, photo number 1, no step taken yet.
void BrowseFromStart();

} // namespace torvik
