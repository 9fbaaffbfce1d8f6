#pragma once

#include <cstddef>
#include <functional>

namespace torvik::sample {

/// Calls `work` with 0 to `count` - 1 on all processors, in this order as far as they are free. Throws what
/// the last failing call threw, after the others under way have ended.
///
/// Each call has a thread of its own. Letters are spaced a little differently once others have been drawn on
/// the same thread, and as no two runs deal out the work alike, no two would draw the same picture.
void InParallel(std::size_t count, const std::function<void(std::size_t)>& work);

} // namespace torvik::sample
