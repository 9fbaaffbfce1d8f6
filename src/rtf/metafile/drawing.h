#pragma once

#include "rtf/metafile/gdi_state.h"

#include <functional>

namespace torvik::rtf {

class GdiCanvas;

/// A metafile that was opened: the mapping of its units, and its records, which can be played more than once.
struct Drawing {
    GdiMapping mapping;
    /// The part of the device that is the picture; empty when the records alone can tell.
    QRectF frame;
    /// Pixels at 96 to the inch; empty when the metafile does not say.
    QSizeF naturalSize;
    /// Empty when the bytes are no metafile.
    std::function<void(GdiCanvas&)> play;
};

} // namespace torvik::rtf
