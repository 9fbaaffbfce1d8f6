#pragma once

namespace torvik {

/// Ties cmdAd to the advertisement of the year, which it shows in frmScroll over the whole screen.
void BindAdvertisement();

} // namespace torvik
