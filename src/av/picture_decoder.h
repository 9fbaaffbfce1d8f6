#pragma once

#include "av/libav.h"
#include "av/media_pieces.h"

#include <optional>

namespace torvik {

/// Packets of a movie's picture stream -> pictures in true colour, whatever the codec makes of them.
class PictureDecoder {
public:
    /// Null when no decoder takes the stream.
    static std::unique_ptr<PictureDecoder> Open(const AVStream& stream, qint64 startTime);

    /// A damaged packet is passed over. A null packet brings out what the decoder still holds.
    void Send(const AVPacket* packet);
    /// The next picture; nothing until more packets came.
    std::optional<MediaPicture> Receive();
    void Flush();

    /// Microseconds from one picture to the next.
    qint64 FrameDuration() const { return frameDuration_; }

private:
    PictureDecoder(libav::Owned<AVCodecContext> codec, const AVStream& stream, qint64 startTime);
    qint64 TimeOf(const AVFrame& frame);
    QImage Convert(const AVFrame& frame);

    libav::Owned<AVCodecContext> codec_;
    libav::Owned<AVFrame> frame_;
    libav::Owned<SwsContext> scaler_;
    AVRational timeBase_;
    qint64 startTime_;
    qint64 frameDuration_;
    qint64 next_ = 0; // where the picture stands that does not say so itself
};

} // namespace torvik
