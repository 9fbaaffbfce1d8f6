#include "sample/sounds/wave_file.h"

#include "sample/files/riff.h"
#include "sample/geometry/noise.h"
#include "sample/geometry/vec.h"

#include <QStringBuilder>

#include <numeric>

namespace torvik::sample {

Sound AtRate(const Sound& sound, int rate)
{
    const int step = static_cast<int>(soundRate) / rate;
    if (step == 1)
        return sound;
    // A low pass of 16 lobes on each side, in a window that ends in zero.
    const int reach = 16 * step;
    std::vector<double> weights;
    double sum = 0;
    for (int k = -reach; k <= reach; ++k) {
        const double x = 0.92 * k / step;
        const double wave = k == 0 ? 1.0 : std::sin(pi * x) / (pi * x);
        const double window = 0.42 + 0.5 * std::cos(pi * k / reach) + 0.08 * std::cos(2 * pi * k / reach);
        weights.push_back(wave * window);
        sum += weights.back();
    }
    const int count = static_cast<int>(sound.size());
    Sound thin;
    thin.reserve(sound.size() / static_cast<std::size_t>(step) + 1);
    for (int at = 0; at < count; at += step) {
        const int from = std::max(0, at - reach);
        const int to = std::min(count, at + reach + 1);
        const double value = std::inner_product(sound.begin() + from, sound.begin() + to,
                                                weights.begin() + (from - at + reach), 0.0);
        thin.push_back(value / sum);
    }
    return thin;
}

QByteArray PcmSamples(const std::vector<Sound>& channels, const SoundForm& form)
{
    Random random(8);
    QByteArray bytes;
    for (std::size_t i = 0; i < channels.front().size(); ++i) {
        for (const Sound& channel : channels) {
            const double value = std::clamp(channel[i], -1.0, 1.0);
            if (form.bits == 8) {
                // A little hiss hides the steps of so few bits, except where it is silent.
                const double hiss = std::abs(value) > 0.002 ? random.Unit() - random.Unit() : 0.0;
                const int whole = std::clamp(Floor(value * 127 + hiss * 0.5 + 0.5), -127, 127);
                AppendNumber(bytes, static_cast<std::uint32_t>(whole + 128), 1);
            } else {
                AppendNumber(bytes, static_cast<std::uint32_t>(Floor(value * 32767 + 0.5)), 2);
            }
        }
    }
    return bytes;
}

QByteArray PcmFormat(int channels, const SoundForm& form)
{
    const int frame = channels * form.bits / 8;
    return Words({1, channels}) + Longs({form.rate, qint64{form.rate} * frame}) + Words({frame, form.bits});
}

QByteArray WaveFile(const std::vector<Sound>& channels, const SoundForm& form)
{
    return RiffList("RIFF", "WAVE",
                    RiffChunk("fmt ", PcmFormat(static_cast<int>(channels.size()), form)) +
                        RiffChunk("data", PcmSamples(channels, form)));
}

} // namespace torvik::sample
