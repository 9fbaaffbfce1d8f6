#pragma once

#include <QImage>

#include <string_view>

namespace torvik::rtf {

/// The image of a PNG or JPEG file held in memory. Null when the bytes are neither, end early, or when the
/// image would take more than `mostBytes` bytes; a JPEG is then decoded at a reduced size instead.
QImage DecodeStoredPicture(std::string_view bytes, qint64 mostBytes);
bool IsPng(std::string_view bytes);
bool IsJpeg(std::string_view bytes);

} // namespace torvik::rtf
