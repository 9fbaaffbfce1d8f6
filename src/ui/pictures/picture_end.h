#pragma once

class QByteArray;

namespace torvik {

/// Whether a picture file holds all of its data. Qt's loader makes a half-grey picture of a file
/// that was cut off; this looks for the end of the format's own data first. Formats that are neither JPEG nor
/// BMP pass: their loaders refuse a file that was cut off by themselves.
bool HasItsEnd(const QByteArray& bytes);

} // namespace torvik
