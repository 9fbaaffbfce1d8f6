#pragma once

#include "rtf/parts/group_state.h"
#include "rtf/read/word_table.h"

namespace torvik::rtf {

/// The words that are read in a group with a destination.
WordScope ScopeOf(Destination destination);

} // namespace torvik::rtf
