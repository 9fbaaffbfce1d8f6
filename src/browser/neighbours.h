#pragma once

namespace torvik {

enum class Walk { Forward, Backward };

/// Has the photos read ahead that the next steps from the photo at an index of the list will show: the next
/// two in the direction of the walk, and the one before. Never fails.
void ReadNeighboursAhead(int index, Walk walk);

} // namespace torvik
