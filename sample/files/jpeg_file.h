#pragma once

#include <QByteArray>
#include <QImage>

namespace torvik::sample {

/// The picture as JPEG bytes; `quality` 1 to 100. Throws std::runtime_error where it cannot be encoded.
QByteArray JpegBytes(const QImage& picture, int quality);
/// The same bytes with a tag that says: turn me a quarter to the right before showing me.
QByteArray WithTurnTag(const QByteArray& jpeg);
/// Writes a file, its folder included, or throws std::runtime_error.
void WriteFile(const QString& path, const QByteArray& bytes);

} // namespace torvik::sample
