#pragma once

#include <functional>

namespace torvik {

/// Asks whether the video driver shall be installed from the disc, runs its installer and, when that has
/// ended, `afterwards`. A failure is reported as ER003.
void OfferDriver(const std::function<void()>& afterwards);

} // namespace torvik
