#pragma once

namespace torvik {

/// Starts the tool that tells about this machine: the one that the registry names, or, on a system without
/// that, the first of the desktops' own that is installed. A message says so when there is none or it does
/// not start.
void StartSystemInformation();

} // namespace torvik
