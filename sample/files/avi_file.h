#pragma once

#include <QByteArray>
#include <QSize>

#include <vector>

namespace torvik::sample {

/// A movie before it is a file: each picture a JPEG, the sound as plain samples.
struct AviMovie {
    QSize size{};
    int framesPerSecond = 12;
    std::vector<QByteArray> frames{};
    QByteArray soundFormat{}; ///< as PcmFormat makes it
    QByteArray sound{};       ///< as PcmSamples makes it
    int bytesPerSecond = 0;   ///< of the sound
    int bytesPerSample = 0;   ///< of the sound, all channels together
};

/// The whole file: headers, pictures and sound by turns, and an index.
QByteArray AviFile(const AviMovie& movie);

} // namespace torvik::sample
