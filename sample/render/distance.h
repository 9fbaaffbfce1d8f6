#pragma once

#include <QSize>

#include <vector>

namespace torvik::sample {

/// How far each point of a field lies from the nearest point whose value is below a half, in points.
std::vector<float> DistancesInside(const std::vector<float>& field, QSize size);
/// Each point becomes the mean of the square of `2 * radius + 1` points round it, three times over.
void Soften(std::vector<float>& field, QSize size, int radius);

} // namespace torvik::sample
