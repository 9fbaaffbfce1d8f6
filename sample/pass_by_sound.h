#pragma once

#include <QByteArray>

namespace torvik::sample {

/// A wave file, 16 bit, 22050 Hz, one channel: a V8 comes near, passes and goes, with the drop of its pitch.
QByteArray PassBySound();

} // namespace torvik::sample
