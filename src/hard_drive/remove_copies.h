#pragma once

namespace torvik {

/// Ties the handlers of the two menu entries that remove what was copied to the hard drive.
void BindRemoveCopies();

} // namespace torvik
