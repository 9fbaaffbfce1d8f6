#pragma once

#include "rtf/metafile/drawing.h"

#include <string_view>

namespace torvik::rtf {

/// Opens a metafile of the older kind. The drawing refers to the bytes, which have to outlive it.
Drawing OpenWmf(std::string_view bytes);

} // namespace torvik::rtf
