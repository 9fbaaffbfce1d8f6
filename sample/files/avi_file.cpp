#include "sample/files/avi_file.h"

#include "sample/files/riff.h"

#include <algorithm>
#include <initializer_list>

namespace torvik::sample {

namespace {

QByteArray Numbers(std::initializer_list<int> values)
{
    QByteArray bytes;
    for (const int value : values)
        AppendNumber(bytes, static_cast<std::uint32_t>(value), 4);
    return bytes;
}

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
        "avih", Numbers({1000000 / movie.framesPerSecond,
                         longest * movie.framesPerSecond + movie.bytesPerSecond, 0, hasIndexAndIsInterleaved,
                         frames, 0, 2, longest, movie.size.width(), movie.size.height(), 0, 0, 0, 0}));
}

QByteArray PictureStream(const AviMovie& movie)
{
    const int width = movie.size.width();
    const int height = movie.size.height();
    QByteArray header("vidsMJPG");
    header += Numbers({0, 0, 0, 1, movie.framesPerSecond, 0, static_cast<int>(movie.frames.size()),
                       LongestOf(movie.frames), -1, 0});
    AppendNumber(header, 0, 4);
    AppendNumber(header, static_cast<std::uint32_t>(width), 2);
    AppendNumber(header, static_cast<std::uint32_t>(height), 2);
    QByteArray bitmap = Numbers({40, width, height});
    AppendNumber(bitmap, 1, 2);
    AppendNumber(bitmap, 24, 2);
    bitmap += "MJPG";
    bitmap += Numbers({width * height * 3, 0, 0, 0, 0});
    QByteArray chunks = RiffChunk("strh", header);
    chunks += RiffChunk("strf", bitmap);
    return RiffList("LIST", "strl", chunks);
}

QByteArray SoundStream(const AviMovie& movie)
{
    QByteArray header("auds");
    header += Numbers({0, 0, 0, 0, movie.bytesPerSample, movie.bytesPerSecond, 0,
                       static_cast<int>(movie.sound.size()) / movie.bytesPerSample, movie.bytesPerSecond, -1,
                       movie.bytesPerSample, 0, 0});
    QByteArray chunks = RiffChunk("strh", header);
    chunks += RiffChunk("strf", movie.soundFormat);
    return RiffList("LIST", "strl", chunks);
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
    QByteArray headers = MainHeader(movie);
    headers += PictureStream(movie);
    headers += SoundStream(movie);
    QByteArray pieces;
    QByteArray index;
    const auto add = [&](const char* name, const QByteArray& content) {
        index += QByteArray(name, 4);
        // Places count from the word "movi".
        index += Numbers({keyFrame, static_cast<int>(pieces.size()) + 4, static_cast<int>(content.size())});
        pieces += RiffChunk(name, content);
    };
    for (std::size_t i = 0; i < movie.frames.size(); ++i) {
        const qsizetype from = SoundBefore(movie, i);
        const qsizetype to = i + 1 == movie.frames.size() ? movie.sound.size() : SoundBefore(movie, i + 1);
        add("00dc", movie.frames[i]);
        if (to > from)
            add("01wb", movie.sound.mid(from, to - from));
    }
    QByteArray file = RiffList("LIST", "hdrl", headers);
    file += RiffList("LIST", "movi", pieces);
    file += RiffChunk("idx1", index);
    return RiffList("RIFF", "AVI ", file);
}

} // namespace torvik::sample
