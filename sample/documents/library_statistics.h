#pragma once

#include "sample/files/rich_document.h"

namespace torvik::sample {

/// The figures of all years side by side.
RichDocument LibraryStatistics();

} // namespace torvik::sample
