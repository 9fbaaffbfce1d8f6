#pragma once

#include "saver/saver_settings.h"

#include <QString>

namespace torvik {

/// What the saver tells of itself: which photos it shows, how fast, and how that is changed.
QString InformationText(const SaverSettings& settings);

} // namespace torvik
