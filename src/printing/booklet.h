#pragma once

namespace torvik {

/// Prints what the booklet panel has ticked, and says so; a failure is reported and ends the printing.
void PrintBooklet();

} // namespace torvik
