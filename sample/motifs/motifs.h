#pragma once

#include "sample/photos/photo_plan.h"

#include <QImage>

namespace torvik::sample {

/// Draws what is no car on a road: details, collectibles, studies.
QImage PaintMotif(const PlannedPhoto& photo);

QImage PaintDashboard(const PlannedPhoto& photo);
QImage PaintEngine(const PlannedPhoto& photo);
QImage PaintBadge(const PlannedPhoto& photo);
QImage PaintStamps(const PlannedPhoto& photo);
QImage PaintSign(const PlannedPhoto& photo);
QImage PaintDieCast(const PlannedPhoto& photo);
QImage PaintKnife(const PlannedPhoto& photo);
QImage PaintCookies(const PlannedPhoto& photo);
QImage PaintBoardGame(const PlannedPhoto& photo);
QImage PaintClay(const PlannedPhoto& photo);
QImage PaintSketch(const PlannedPhoto& photo);

} // namespace torvik::sample
