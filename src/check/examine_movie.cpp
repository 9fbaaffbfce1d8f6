#include "check/examine_movie.h"

#include "av/media_reader.h"
#include "check/riff_chunks.h"
#include "ui/media/file_source.h"

#include <algorithm>
#include <memory>
#include <variant>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr qint64 second = 1'000'000; // microseconds

/// What came of decoding a whole file.
struct Decoded {
    bool isOpen = false;
    MediaInfo info;
    qint64 pictures = 0;
    qint64 soundBytes = 0;
    qint64 end = 0; ///< of the last piece, in microseconds
};

Decoded Decode(const Place& place)
{
    Decoded decoded;
    const SoundFormat format;
    const std::unique_ptr<MediaReader> reader = MediaReader::Open(FileSource::Open(place), format);
    if (reader == nullptr)
        return decoded;
    decoded.isOpen = true;
    decoded.info = reader->Info();
    for (;;) {
        const MediaReader::Piece piece = reader->Next();
        if (const auto* const picture = std::get_if<MediaPicture>(&piece)) {
            ++decoded.pictures;
            decoded.end = std::max(decoded.end, picture->time + decoded.info.frameDuration);
        } else if (const auto* const samples = std::get_if<MediaSamples>(&piece)) {
            decoded.soundBytes += samples->bytes.size();
            decoded.end = std::max(decoded.end,
                                   samples->time + samples->bytes.size() * second / format.BytesPerSecond());
        } else {
            return decoded;
        }
    }
}

/// A movie that stops before the time that it tells of. Times are rounded, so a little less is no loss.
QString EarlyEnd(const Decoded& decoded)
{
    const qint64 tolerance = std::max(second / 2, 3 * decoded.info.frameDuration);
    if (decoded.info.duration - decoded.end <= tolerance)
        return {};
    return u"ends after %1 of %2 seconds"_s.arg(decoded.end / second).arg(decoded.info.duration / second);
}

} // namespace

Examination ExamineMovie(const Place& place)
{
    const Decoded decoded = Decode(place);
    if (!decoded.isOpen || decoded.pictures == 0)
        return Damaged(u"has no readable picture"_s);
    if (const QString problem = MovieIndexProblem(place); !problem.isEmpty())
        return Damaged(problem);
    if (const QString problem = EarlyEnd(decoded); !problem.isEmpty())
        return Damaged(problem);
    return {};
}

Examination ExamineSound(const Place& place)
{
    const Decoded decoded = Decode(place);
    if (!decoded.isOpen || decoded.soundBytes == 0)
        return Damaged(u"has no sound"_s);
    if (const QString problem = SoundLengthProblem(place); !problem.isEmpty())
        return Damaged(problem);
    return {};
}

} // namespace torvik
