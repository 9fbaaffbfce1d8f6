#pragma once

#include "platform/image/image_tracks.h"

#include <QByteArray>

#include <string>
#include <vector>

namespace torvik {

/// The data tracks that the text of a CUE sheet names. Their files are looked for in the folder of the sheet
/// under the last part of the name that it gives, whatever the letter case, since sheets carry the folders of
/// the machine that wrote them; failing that under the name of the sheet itself with ".bin". Lines that
/// make no sense are passed over.
std::vector<ImageTrack> TracksOfCueSheet(const QByteArray& text, const std::string& sheetFile);

} // namespace torvik
