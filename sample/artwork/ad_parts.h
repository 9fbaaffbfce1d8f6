#pragma once

#include "sample/artwork/ad_plan.h"

#include <QImage>
#include <QPainter>

namespace torvik::sample {

/// A page under the printer's hands.
struct AdPage {
    QPainter& painter;
    const PlannedAd& plan;
    const AdCopy& copy;
};

/// The photograph of the car for a place of the page.
QImage AdPhoto(const PlannedAd& plan, QSize size);
/// The box with the price of the car and what it is for.
void DrawPriceBox(const AdPage& page, const QRectF& box, const QColor& ground, const QColor& ink);
/// The engines of the year with their power, one to a line.
void DrawEngines(const AdPage& page, const QRectF& box, const QColor& ink);
/// The car in the first colours of the card, as flat drawings side by side.
void DrawColourRow(const AdPage& page, const QRectF& box, const QColor& ink);
/// Shield, name and works; small print below.
void DrawSignature(const AdPage& page, const QRectF& box, const QColor& ink);

} // namespace torvik::sample
