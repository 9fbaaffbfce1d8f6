#pragma once

namespace torvik {

/// The twip is the unit of all design geometry: 15 to the pixel, on every screen.
inline constexpr double twipsPerPixel = 15;

/// A design place and size in twips.
struct Twips {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// The unit in which a container measures the controls that lie on it.
enum class Scale { Twips, Pixels };

} // namespace torvik
