#pragma once

#include "check/examine_file.h"

namespace torvik {

/// Decodes a picture to its last byte.
Examination ExaminePicture(const QByteArray& bytes);

/// Lets the decoder's own complaints about a picture count; without it only what stops the decoder does.
/// Called once before the threads begin.
void ListenToDecoders();

} // namespace torvik
