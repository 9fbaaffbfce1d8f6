#pragma once

namespace torvik {

/// Ties the handlers of the room under test and of the rooms that it stands on; each test executable has its
/// own.
void BindRoom();

} // namespace torvik
