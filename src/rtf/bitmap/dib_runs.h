#pragma once

#include <QImage>

#include <string_view>

namespace torvik::rtf {

/// Fills an 8-bit image from run-length coded pixels of 8 or 4 bits. Runs that leave the image are cut.
void DecodeRuns(std::string_view runs, int bitsPerPixel, bool topDown, QImage& image);

} // namespace torvik::rtf
