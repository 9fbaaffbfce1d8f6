#pragma once

#include "sample/artwork/ad_parts.h"

namespace torvik::sample {

/// Each sets a whole page, which has been filled with the colour of the paper.

void SetPictureOverText(const AdPage& page);
void SetFullPicture(const AdPage& page);
void SetStripes(const AdPage& page);
void SetGrid(const AdPage& page);
void SetSpread(const AdPage& page);

} // namespace torvik::sample
