#pragma once

#include <cstddef>

namespace torvik {

/// Memory for many MiB all of which are going to be written, made ready in one go where the system can: else
/// the first write to every page of it takes a turn through the system. Null when there is not enough. What
/// stands in it is not told. FreeLargeMemory gives it back.
void* TakeLargeMemory(std::size_t bytes);
void FreeLargeMemory(void* memory);

} // namespace torvik
