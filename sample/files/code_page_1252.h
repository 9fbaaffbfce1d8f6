#pragma once

#include <QChar>

namespace torvik::sample {

/// The byte of a character in the Western code page, or -1 where it has none.
int ByteOfWestern(QChar character);

} // namespace torvik::sample
