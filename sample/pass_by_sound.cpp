#include "pass_by_sound.h"

#include "noise.h"
#include "vec.h"

#include <array>
#include <vector>

namespace torvik::sample {

namespace {

constexpr int kRate = 22050;
constexpr double kSeconds = 3.2;
constexpr double kSoundSpeed = 340.0;

void Append(QByteArray& bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>((value >> (8 * i)) & 0xFFU);
}

} // namespace

QByteArray PassBySound()
{
    const int count = static_cast<int>(kRate * kSeconds);
    std::vector<double> samples;
    samples.reserve(static_cast<std::size_t>(count));
    Random random(67);
    constexpr double kSpeed = 34.0;   // metres a second
    constexpr double kAside = 4.5;    // metres between ear and road
    constexpr double kPassing = 1.55; // seconds
    // Firing order of a crossplane V8: eight pulses of unlike strength in two turns.
    constexpr std::array kPulses = {1.0, 0.72, 0.93, 0.64, 1.0, 0.8, 0.7, 0.95};
    double phase = 0;
    double hiss = 0;
    double rumble = 0;
    double loudest = 0;
    for (int i = 0; i < count; ++i) {
        const double t = static_cast<double>(i) / kRate;
        const double along = kSpeed * (t - kPassing);
        const double distance = std::hypot(along, kAside);
        const double approach = -kSpeed * along / distance; // positive while it comes nearer
        const double pitch = kSoundSpeed / (kSoundSpeed - approach);
        // Cycles of two turns each second: 4200 revolutions a minute, rising a little.
        const double cycles = (35.0 + 1.6 * t) * pitch;
        phase += cycles / kRate;
        const double pulse = (phase - Floor(phase)) * 8.0;
        const int which = Floor(pulse) % 8;
        const double inPulse = pulse - Floor(pulse);
        const double bang = kPulses[static_cast<std::size_t>(which)] * std::exp(-inPulse * 3.4) *
                            std::sin(2 * kPi * inPulse * 1.5);
        const double whole = 0.5 * std::sin(2 * kPi * phase * 4.0) + 0.3 * std::sin(2 * kPi * phase * 2.0) +
                             0.16 * std::sin(2 * kPi * phase * 12.0);
        const double white = random.Between(-1.0, 1.0);
        const double bright = std::exp(-distance / 60.0);
        hiss += (white - hiss) * (0.12 + 0.35 * bright);
        rumble += (bang + whole - rumble) * (0.18 + 0.45 * bright);
        // The exhaust points backward, so the car is louder after it has passed.
        const double behind = 0.5 + 0.5 * std::tanh(along / 6.0);
        const double gain = 1.0 / (1.0 + distance / 5.0);
        const double value = gain * (rumble * (0.75 + 0.45 * behind) + hiss * 0.35);
        samples.push_back(value * SmoothStep(0.0, 0.12, t) *
                          (1.0 - SmoothStep(kSeconds - 0.35, kSeconds, t)));
        loudest = std::max(loudest, std::abs(samples.back()));
    }
    QByteArray bytes;
    const auto dataSize = static_cast<std::uint32_t>(count * 2);
    bytes += "RIFF";
    Append(bytes, 36 + dataSize, 4);
    bytes += "WAVEfmt ";
    Append(bytes, 16, 4);
    Append(bytes, 1, 2);
    Append(bytes, 1, 2);
    Append(bytes, kRate, 4);
    Append(bytes, kRate * 2, 4);
    Append(bytes, 2, 2);
    Append(bytes, 16, 2);
    bytes += "data";
    Append(bytes, dataSize, 4);
    for (const double value : samples)
        Append(bytes,
               static_cast<std::uint32_t>(static_cast<int>(std::lround(value / loudest * 0.92 * 32767.0))),
               2);
    return bytes;
}

} // namespace torvik::sample
