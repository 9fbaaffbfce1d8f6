#pragma once

#include "sample/sounds/sound.h"

namespace torvik::sample {

/// A filter of the second order, fed sample by sample. Frequencies in hertz; `q` is its sharpness, 0.7 for
/// none.
class Filter {
public:
    static Filter LowPass(double hertz, double q = 0.707);
    static Filter HighPass(double hertz, double q = 0.707);
    /// As loud as before at `hertz`, quieter elsewhere.
    static Filter BandPass(double hertz, double q);

    double operator()(double in)
    {
        const double out = b0_ * in + z1_;
        z1_ = b1_ * in - a1_ * out + z2_;
        z2_ = b2_ * in - a2_ * out;
        return out;
    }

private:
    double b0_ = 1, b1_ = 0, b2_ = 0, a1_ = 0, a2_ = 0;
    double z1_ = 0, z2_ = 0;
};

/// The sound after the filter.
Sound Filtered(Sound sound, Filter filter);
/// Overdriven: the louder, the rounder; `drive` 1 is gentle, 5 harsh. The result stays within -1 to 1.
Sound Driven(Sound sound, double drive);
/// With the echo of a place: `seconds` until it has died away, `share` of it in the result (0 to 1). The
/// sound grows by its tail.
Sound InRoom(const Sound& sound, double seconds, double share);

} // namespace torvik::sample
