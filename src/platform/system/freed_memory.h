#pragma once

namespace torvik {

/// From now on large blocks of memory, above all pictures, go back to the system as soon as they are freed.
/// Called once, before there is a second thread.
void GiveFreedMemoryBack();

} // namespace torvik
