#include "sample/files/avi_file.h"

#include "sample/files/riff.h"

#include <algorithm>

namespace torvik::sample {

namespace {

int LongestOf(const std::vector<QByteArray>& frames)
{
    qsizetype longest = 0;
    for (const QByteArray& frame : frames)
        longest = std::max(longest, frame.size());
    return static_cast<int>(longest);
}

QByteArray MainHeader(const AviMovie& movie)
{
    constexpr int hasIndexAndIsInterleaved = 0x10 | 0x100;
    const int frames = static_cast<int>(movie.frames.size());
    const int longest = LongestOf(movie.frames);
    return RiffChunk(
        "avih", Longs({1000000 / movie.framesPerSecond,
                       longest * movie.framesPerSecond + movie.bytesPerSecond, 0, hasIndexAndIsInterleaved,
                       frames, 0, 2, longest, movie.size.width(), movie.size.height(), 0, 0, 0, 0}));
}

QByteArray PictureStream(const AviMovie& movie)
{
    const int width = movie.size.width();
    const int height = movie.size.height();
    QByteArray header("vidsMJPG");
    header += Longs({0, 0, 0, 1, movie.framesPerSecond, 0, static_cast<int>(movie.frames.size()),
                     LongestOf(movie.frames), -1, 0});
    header += Longs({0}) + Words({width, height});
    const QByteArray bitmap = Longs({40, width, height}) + Words({1, 24}) + "MJPG" +
                              Longs({qint64{width} * height * 3, 0, 0, 0, 0});
    return RiffList("LIST", "strl", RiffChunk("strh", header) + RiffChunk("strf", bitmap));
}

QByteArray SoundStream(const AviMovie& movie)
{
    QByteArray header("auds");
    header += Longs({0, 0, 0, 0, movie.bytesPerSample, movie.bytesPerSecond, 0,
                     static_cast<int>(movie.sound.size()) / movie.bytesPerSample, movie.bytesPerSecond, -1,
                     movie.bytesPerSample, 0, 0});
    return RiffList("LIST", "strl", RiffChunk("strh", header) + RiffChunk("strf", movie.soundFormat));
}

/// The byte of the sound that belongs to the beginning of the frame.
qsizetype SoundBefore(const AviMovie& movie, std::size_t frame)
{
    const qsizetype sample =
        static_cast<qsizetype>(frame) * movie.bytesPerSecond / movie.bytesPerSample / movie.framesPerSecond;
    return std::min(sample * movie.bytesPerSample, movie.sound.size());
}

} // namespace

QByteArray AviFile(const AviMovie& movie)
{
    constexpr int keyFrame = 0x10;
    const QByteArray headers = MainHeader(movie) + PictureStream(movie) + SoundStream(movie);
    QByteArray pieces;
    QByteArray index;
    const auto add = [&](const char* name, const QByteArray& content) {
        index += QByteArray(name, 4);
        // Places count from the word "movi".
        index += Longs({keyFrame, static_cast<int>(pieces.size()) + 4, static_cast<int>(content.size())});
        pieces += RiffChunk(name, content);
    };
    for (std::size_t i = 0; i < movie.frames.size(); ++i) {
        const qsizetype from = SoundBefore(movie, i);
        const qsizetype to = i + 1 == movie.frames.size() ? movie.sound.size() : SoundBefore(movie, i + 1);
        add("00dc", movie.frames[i]);
        if (to > from)
            add("01wb", movie.sound.mid(from, to - from));
    }
    return RiffList("RIFF", "AVI ",
                    RiffList("LIST", "hdrl", headers) + RiffList("LIST", "movi", pieces) +
                        RiffChunk("idx1", index));
}

} // namespace torvik::sample
