#pragma once

#include "platform/paths/volume.h"

#include <QString>

namespace torvik {

// Movies and sounds are rows of chunks: a name of four letters, a length, content. Players guess where a
// chunk lies; these say what a guess hides. Failures are those of reading the file.

/// What is wrong with the chunks and the index of an AVI; empty when nothing is.
QString MovieIndexProblem(const Place& place);

/// Whether the samples of a WAV are shorter than it tells; empty when they are not.
QString SoundLengthProblem(const Place& place);

} // namespace torvik
