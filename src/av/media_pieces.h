#pragma once

#include <QByteArray>
#include <QImage>
#include <QtGlobal>

namespace torvik {

/// How samples of sound are wanted: interleaved, in the machine's byte order.
struct SoundFormat {
    enum class Sample { Int16, Float };

    int rate = 44100; ///< samples a second of each channel
    int channels = 2;
    Sample kind = Sample::Int16;

    int BytesPerSecond() const { return rate * BytesPerFrame(); }
    /// One sample of each channel.
    int BytesPerFrame() const { return channels * (kind == Sample::Int16 ? 2 : 4); }
};

/// What is known of a file before it is played. Times are in microseconds.
struct MediaInfo {
    bool hasPictures = false;
    bool hasSound = false;
    qint64 duration = 0;      ///< as the file says it; 0 when it does not
    qint64 frameDuration = 0; ///< from one picture to the next; 0 without pictures
};

/// One picture of a movie, shown from `Time` on.
struct MediaPicture {
    qint64 time = 0;
    QImage image;
};

/// A stretch of sound that begins at `Time`.
struct MediaSamples {
    qint64 time = 0;
    QByteArray bytes;
};

} // namespace torvik
