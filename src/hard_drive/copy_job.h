#pragma once

#include <QString>

#include <cstdint>

namespace torvik {

/// One of the two kinds of copy. The sizes are fixed and not measured on the disc; the room that is demanded
/// and the size that the gauge counts by have never been the same numbers.
struct CopyJob {
    QString heading;
    QString button;
    QString folder;            ///< on the disc and beside the program, "\Torviks\"
    QString done;              ///< what is said at the end
    std::int32_t roomDemanded; ///< bytes
    std::int32_t size;         ///< bytes
};

/// The kind that the panel is set for: photos while `state.CopyingPhotos`, else movies.
const CopyJob& PresentCopyJob();

} // namespace torvik
