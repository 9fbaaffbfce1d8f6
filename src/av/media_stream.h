#pragma once

#include "av/byte_source.h"
#include "av/media_pieces.h"

#include <functional>
#include <memory>
#include <optional>

namespace torvik {

/// A movie or sound that is read and decoded ahead in the background, so that whoever plays it never waits
/// for a slow disc. All its calls return at once.
class MediaStream {
public:
    using Opener = std::function<std::unique_ptr<ByteSource>()>;

    /// Begins to read. `open` runs in the background; null from it is a file that cannot be opened.
    MediaStream(Opener open, const SoundFormat& sound);
    /// Does not wait for a disc that is busy.
    ~MediaStream();
    MediaStream(const MediaStream&) = delete;
    MediaStream& operator=(const MediaStream&) = delete;

    enum class State {
        Opening,
        Ready,
        Failed, ///< nothing that can be played
    };
    State Progress() const;
    /// Of use once it is ready.
    MediaInfo Info() const;

    /// Goes to a time in microseconds; what was read for another one is forgotten.
    void Seek(qint64 time);
    /// The latest picture that begins at `time` or before and was not taken yet; earlier ones are dropped.
    /// Nothing when there is none yet, or no new one.
    std::optional<MediaPicture> TakePicture(qint64 time);
    /// The next picture, of whatever time; nothing when there is none yet.
    std::optional<MediaPicture> TakeNextPicture();
    bool HasPicture() const;
    /// Up to `bytes` of sound in a row; a whole number of samples of all channels when `bytes` is one. What
    /// ended before `time` is dropped.
    QByteArray TakeSound(qsizetype bytes, qint64 time);
    /// Whether everything was read and taken.
    bool AtEnd() const;
    /// Where the last piece that was read ends.
    qint64 EndOfRead() const;

private:
    struct Shared;
    std::shared_ptr<Shared> shared_;
};

} // namespace torvik
