#pragma once

#include "sample/sounds/sound.h"

#include <QByteArray>

namespace torvik::sample {

/// How a finished sound is stored.
struct SoundForm {
    int rate = 22050; ///< samples a second: 44100, 22050 or 11025
    int bits = 16;    ///< 8 or 16
};

/// The sound with `rate` samples a second, after all that is too high for that rate has been taken out.
Sound AtRate(const Sound& sound, int rate);
/// The samples of the channels (of equal length, at the form's rate) in turn, as the data of a wave file or
/// a movie; -1 and 1 are full scale, and what lies beyond is cut off.
QByteArray PcmSamples(const std::vector<Sound>& channels, const SoundForm& form);
/// A header of the kind WAVEFORMATEX for plain samples, without its size of extra data.
QByteArray PcmFormat(int channels, const SoundForm& form);
/// A whole file from channels at the form's rate.
QByteArray WaveFile(const std::vector<Sound>& channels, const SoundForm& form);

} // namespace torvik::sample
