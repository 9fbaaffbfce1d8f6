#include "platform/image/image_tracks.h"

#include "platform/image/cue_sheet.h"
#include "platform/image/image_bytes.h"
#include "platform/image/nero_table.h"
#include "runtime/failure.h"

#include <QByteArray>

namespace torvik {

namespace {

/// A sheet is a page of text; what is longer is none.
constexpr qint64 longestSheet = 256LL * 1024;

bool IsNamedAsSheet(const std::string& file)
{
    const QByteArray name = QByteArray::fromStdString(file).toLower();
    return name.endsWith(".cue");
}

std::vector<ImageTrack> TracksOfSheet(const std::string& file)
{
    const ImageBytes bytes(file);
    if (bytes.Length() > longestSheet)
        return {};
    QByteArray text(static_cast<qsizetype>(bytes.Length()), Qt::Uninitialized);
    text.truncate(bytes.Read(0, text.data(), text.size()));
    return TracksOfCueSheet(text, file);
}

std::vector<ImageTrack> TracksOfNero(const std::string& file)
{
    std::vector<ImageTrack> tracks;
    for (const qint64 firstByte : NeroTrackBeginnings(ImageBytes(file)))
        tracks.push_back({file, firstByte});
    return tracks;
}

} // namespace

std::vector<ImageTrack> TracksOf(const std::string& imageFile)
{
    std::vector<ImageTrack> tracks;
    ResumeNext(
        [&] { tracks = IsNamedAsSheet(imageFile) ? TracksOfSheet(imageFile) : TracksOfNero(imageFile); });
    if (tracks.empty())
        tracks.push_back({imageFile, 0});
    return tracks;
}

} // namespace torvik
