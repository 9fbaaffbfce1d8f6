#pragma once

#include "rtf/model/color_table.h"
#include "rtf/model/paragraph_state.h"

#include <QTextTableCellFormat>

#include <functional>

namespace torvik::rtf {

QTextFrameFormat::BorderStyle BorderStyleOf(BorderLine line);
/// Width in pixels; a border that is set is never thinner than one.
double BorderPixels(const Border& border);
/// Gives a cell the borders that `borderOf` names for each side. A border without a colour is black.
void SetCellBorders(QTextTableCellFormat& format, const std::function<const Border&(int side)>& borderOf,
                    const ColorTable& colors);

} // namespace torvik::rtf
