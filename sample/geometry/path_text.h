#pragma once

#include <QPainterPath>
#include <QString>

namespace torvik::sample {

/// A path written as text: "M x,y" moves, "L x,y" draws a line, "Q" and "C" draw curves with one and two
/// control points, "Z" closes. Throws std::runtime_error where it cannot be read.
QPainterPath PathFromText(const QString& text);

} // namespace torvik::sample
