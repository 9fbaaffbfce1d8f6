#pragma once

#include "av/media_pieces.h"

#include <memory>

class QAudioFormat;
class QAudioSink;
class QIODevice;

namespace torvik {

/// The machine's sound device, as far as there is one. Without a device, or when it goes away, everything is
/// silent and nobody waits for it.
class SoundOutput {
public:
    SoundOutput();
    ~SoundOutput();
    SoundOutput(const SoundOutput&) = delete;
    SoundOutput& operator=(const SoundOutput&) = delete;

    /// The format that suits the device best.
    static SoundFormat PreferredFormat();

    /// Begins to play what is written from now on.
    void Start(const SoundFormat& format);
    /// Cuts off what plays.
    void Stop();
    /// How many bytes can be written now; 0 while it is not running.
    qsizetype Room() const;
    void Write(const QByteArray& bytes);

private:
    std::unique_ptr<QAudioSink> sink_;
    QIODevice* device_ = nullptr;
};

} // namespace torvik
