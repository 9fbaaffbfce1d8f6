#pragma once

#include "av/libav.h"
#include "av/media_pieces.h"

#include <optional>

namespace torvik {

/// Packets of a sound stream -> samples in the format that is wanted.
class SoundDecoder {
public:
    /// Null when no decoder takes the stream.
    static std::unique_ptr<SoundDecoder> Open(const AVStream& stream, const SoundFormat& wanted,
                                              qint64 startTime);

    /// A damaged packet is passed over. A null packet brings out what the decoder still holds.
    void Send(const AVPacket* packet);
    /// The next samples; nothing until more packets came.
    std::optional<MediaSamples> Receive();
    void Flush();

private:
    SoundDecoder(libav::Owned<AVCodecContext> codec, const AVStream& stream, const SoundFormat& wanted,
                 qint64 startTime);
    QByteArray Convert(const AVFrame& frame);
    bool PrepareFor(const AVFrame& frame);

    libav::Owned<AVCodecContext> codec_;
    libav::Owned<AVFrame> frame_;
    libav::Owned<SwrContext> converter_;
    SoundFormat wanted_;
    AVRational timeBase_;
    qint64 startTime_;
    int rate_ = 0; // what the converter takes
    int channels_ = 0;
    int format_ = -1;
    qint64 next_ = 0;
};

} // namespace torvik
