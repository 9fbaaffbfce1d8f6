#pragma once

#include "sample/photos/photo_plan.h"

#include <QImage>

namespace torvik::sample {

/// The picture as it is looked at, before it is stored: a car in its place, or one of the motifs below.
QImage TakePhoto(const PlannedPhoto& photo);

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
