#pragma once

#include "sample/sounds/wave_file.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace torvik::sample {

/// One of the sound effects of the disc.
struct Effect {
    QByteArray file;
    double seconds;
    int channels;
    SoundForm form;
    QString score; ///< its name in drawings/effects.txt
};

/// All of them, in the order of their buttons.
const std::vector<Effect>& SoundEffects();
/// The finished file: as long as planned, evenly loud, silent at both ends.
QByteArray MakeEffect(const Effect& effect);
/// The bytes of the effect of this name; throws std::runtime_error for a name that is not planned.
QByteArray EffectNamed(const char* file);

} // namespace torvik::sample
