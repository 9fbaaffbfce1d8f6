#pragma once

#include "sample/artwork/ad_plan.h"

#include <QImage>

namespace torvik::sample {

/// The printed page.
QImage PaintAd(const PlannedAd& plan);

} // namespace torvik::sample
