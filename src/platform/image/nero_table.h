#pragma once

#include "platform/image/image_bytes.h"

#include <vector>

namespace torvik {

/// Where the tracks of an NRG begin, in bytes, by the table at its end; empty when the file is no NRG or its
/// table makes no sense. The sectors of an NRG may have any size.
std::vector<qint64> NeroTrackBeginnings(const ImageBytes& file);

} // namespace torvik
