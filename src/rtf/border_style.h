#pragma once

#include "rtf/paragraph_state.h"

#include <QTextFrameFormat>

namespace torvik::rtf {

QTextFrameFormat::BorderStyle BorderStyleOf(BorderLine line);
/// Width in pixels; a border that is set is never thinner than one.
double BorderPixels(const Border& border);

} // namespace torvik::rtf
