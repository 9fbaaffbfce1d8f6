#include "sample/sounds/effects.h"

#include "sample/drawings/script.h"
#include "sample/sounds/score.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace torvik::sample {

const std::vector<Effect>& SoundEffects()
{
    static const std::vector<Effect> effects = [] {
        Script table("sound_files");
        table.Run();
        std::vector<Effect> read;
        for (const Value& row : table.Get("files").Items())
            read.push_back({row.At(0).Text().toLatin1(),
                            row.At(1).Number(),
                            row.At(2).Whole(),
                            {row.At(3).At(0).Whole(), row.At(3).At(1).Whole()},
                            row.At(4).Text()});
        return read;
    }();
    return effects;
}

QByteArray MakeEffect(const Effect& effect)
{
    constexpr double peak = 0.9;
    constexpr double rounding = 1.6;
    std::vector<Sound> channels = PlayScore("effects", effect.score);
    double loudest = 1e-9;
    for (Sound& channel : channels) {
        channel = AtRate(Faded(Lasting(std::move(channel), effect.seconds), 0.004, 0.09), effect.form.rate);
        loudest = std::max(loudest, Loudest(channel));
    }
    // The highest peaks are rounded a little, so that single bangs do not make all the rest faint.
    for (Sound& channel : channels) {
        for (double& value : channel)
            value = peak * std::tanh(rounding * value / loudest) / std::tanh(rounding);
    }
    return WaveFile(channels, effect.form);
}

QByteArray EffectNamed(const char* file)
{
    for (const Effect& effect : SoundEffects()) {
        if (effect.file == file)
            return MakeEffect(effect);
    }
    throw std::runtime_error("No sound effect of this name is planned.");
}

} // namespace torvik::sample
