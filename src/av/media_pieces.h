#pragma once

#include <QByteArray>
#include <QImage>
#include <QtGlobal>

namespace torvik {

/// How samples of sound are wanted: interleaved, in the machine's byte order.
struct SoundFormat {
    enum class Sample { Int16, Float };

    int Rate = 44100; ///< samples a second of each channel
    int Channels = 2;
    Sample Kind = Sample::Int16;

    int BytesPerSecond() const { return Rate * BytesPerFrame(); }
    /// One sample of each channel.
    int BytesPerFrame() const { return Channels * (Kind == Sample::Int16 ? 2 : 4); }
};

/// What is known of a file before it is played. Times are in microseconds.
struct MediaInfo {
    bool HasPictures = false;
    bool HasSound = false;
    qint64 Duration = 0;      ///< as the file says it; 0 when it does not
    qint64 FrameDuration = 0; ///< from one picture to the next; 0 without pictures
};

/// One picture of a movie, shown from `Time` on.
struct MediaPicture {
    qint64 Time = 0;
    QImage Image;
};

/// A stretch of sound that begins at `Time`.
struct MediaSamples {
    qint64 Time = 0;
    QByteArray Bytes;
};

} // namespace torvik
