#pragma once

#include <QtGlobal>

#include <string>
#include <vector>

namespace torvik {

/// Where a track that may hold the disc's data begins in a file of the host.
struct ImageTrack {
    std::string file;
    qint64 firstByte = 0;
};

/// The tracks of an image file, in the order in which they are worth a look. The name of the file tells a CUE
/// sheet (.cue), its end an NRG; all else is one track that begins with the file. Nothing is opened for long,
/// and a file that cannot be read has the one track of all others.
std::vector<ImageTrack> TracksOf(const std::string& imageFile);

} // namespace torvik
