#pragma once

#include <QImage>

#include <cstdint>

namespace torvik::sample {

/// Makes a drawing look like a photograph of its year: highlights that bleed, darker corners, grain, and the
/// colours of the film of the time.
void Develop(QImage& picture, int year, std::uint32_t seed);

} // namespace torvik::sample
