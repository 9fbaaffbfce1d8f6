#pragma once

#include "av/byte_source.h"
#include "av/libav.h"
#include "av/media_pieces.h"

#include <memory>
#include <optional>
#include <variant>

namespace torvik {

class PictureDecoder;
class SoundDecoder;

/// A file of pictures, sound or both, read piece by piece. It may be damaged in any way: what can be decoded
/// comes out, and then the end.
class MediaReader {
public:
    struct End {};
    using Piece = std::variant<MediaPicture, MediaSamples, End>;

    /// Null when the bytes are no movie or sound that can be decoded. Sound comes in the format `sound`.
    static std::unique_ptr<MediaReader> Open(std::unique_ptr<ByteSource> source, const SoundFormat& sound);
    ~MediaReader();
    MediaReader(const MediaReader&) = delete;
    MediaReader& operator=(const MediaReader&) = delete;

    const MediaInfo& Info() const { return info_; }

    /// The next piece in the order of the file.
    Piece Next();
    /// Goes to a time in microseconds: the next picture is the one on show then, and the sound begins there.
    /// After the end, that is the last picture.
    void Seek(qint64 time);

private:
    MediaReader(std::unique_ptr<ByteSource> source, const SoundFormat& sound);
    bool OpenFile();
    void OpenStreams();
    bool FeedDecoders();
    std::optional<MediaPicture> NextPicture();
    std::optional<MediaSamples> NextSamples();

    std::unique_ptr<ByteSource> source_;
    libav::Owned<AVIOContext> bytes_;
    libav::Owned<AVFormatContext> file_;
    libav::Owned<AVPacket> packet_;
    std::unique_ptr<PictureDecoder> pictures_;
    std::unique_ptr<SoundDecoder> sound_;
    SoundFormat wanted_;
    MediaInfo info_;
    int pictureStream_ = -1;
    int soundStream_ = -1;
    qint64 startTime_ = 0;
    bool drained_ = false;
    qint64 from_ = 0;                        // what ends before this time is passed over
    std::optional<MediaPicture> passedOver_; // the last such picture, in case that none follows
};

} // namespace torvik
