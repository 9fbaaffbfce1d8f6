#pragma once

#include "check/examine_file.h"

namespace torvik {

/// Decodes a movie, or a sound, to its last packet, and looks at its index.
Examination ExamineMovie(const Place& place);
Examination ExamineSound(const Place& place);

} // namespace torvik
