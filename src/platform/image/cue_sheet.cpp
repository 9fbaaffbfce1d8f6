#include "platform/image/cue_sheet.h"

#include <QList>

#include <algorithm>
#include <cdio/cdio.h>
#include <dirent.h>
#include <optional>

namespace torvik {

namespace {

constexpr std::size_t mostTracksOfSheet = 99;

std::string FolderOf(const std::string& file)
{
    return file.substr(0, file.rfind('/') + 1);
}

/// The file of that folder whose name differs in ASCII letter case at most; empty when there is none.
std::string FileNamed(const std::string& folder, const QByteArray& name)
{
    std::string found;
    DIR* const handle = opendir(folder.empty() ? "." : folder.c_str());
    while (handle != nullptr && !name.isEmpty()) {
        const dirent* const entry = readdir(handle);
        if (entry == nullptr)
            break;
        const bool isExact = name == entry->d_name;
        if (isExact || (found.empty() && name.compare(entry->d_name, Qt::CaseInsensitive) == 0))
            found = folder + entry->d_name;
        if (isExact)
            break;
    }
    if (handle != nullptr)
        closedir(handle);
    return found;
}

/// The name behind FILE without its folders, quoted or not.
QByteArray NameIn(const QByteArray& rest)
{
    const qsizetype end = rest.startsWith('"') ? rest.indexOf('"', 1) : rest.lastIndexOf(' ');
    const QByteArray path =
        rest.startsWith('"') ? rest.mid(1, end - 1) : rest.left(end < 0 ? rest.size() : end).trimmed();
    return path.mid(std::max(path.lastIndexOf('/'), path.lastIndexOf('\\')) + 1);
}

/// Bytes of a sector, by the mode of its track: "MODE1/2352", "AUDIO".
int SectorSize(const QByteArray& mode)
{
    const int size = mode.mid(mode.indexOf('/') + 1).toInt();
    return size > 0 && size <= 2448 ? size : CDIO_CD_FRAMESIZE_RAW;
}

/// "MM:SS:FF" in frames, -1 when it is no time.
qint64 FramesOf(const QByteArray& time)
{
    const QList<QByteArray> fields = time.split(':');
    if (fields.size() != 3)
        return -1;
    bool areNumbers[3] = {};
    const qint64 minutes = fields[0].toUShort(&areNumbers[0]);
    const qint64 seconds = fields[1].toUShort(&areNumbers[1]);
    const qint64 frames = fields[2].toUShort(&areNumbers[2]);
    const bool isTime = areNumbers[0] && areNumbers[1] && areNumbers[2];
    return isTime ? (minutes * CDIO_CD_SECS_PER_MIN + seconds) * CDIO_CD_FRAMES_PER_SEC + frames : -1;
}

class SheetReader {
public:
    explicit SheetReader(const std::string& sheetFile) : sheet_(sheetFile) {}

    void Take(const QByteArray& line)
    {
        const qsizetype blank = line.indexOf(' ');
        const QByteArray word = line.left(blank).toUpper();
        const QByteArray rest = blank < 0 ? QByteArray() : line.mid(blank + 1).trimmed();
        if (word == "FILE")
            TakeFile(rest);
        else if (word == "TRACK")
            mode_ = rest.mid(rest.indexOf(' ') + 1).trimmed().toUpper();
        else if (word == "INDEX" && rest.startsWith("01"))
            TakeBeginning(rest.mid(2).trimmed());
    }
    std::vector<ImageTrack> Tracks() const { return tracks_; }

private:
    void TakeFile(const QByteArray& rest)
    {
        const std::string folder = FolderOf(sheet_);
        file_ = FileNamed(folder, NameIn(rest));
        if (file_.empty()) {
            const QByteArray name = QByteArray::fromStdString(sheet_.substr(folder.size()));
            file_ = FileNamed(folder, name.left(name.lastIndexOf('.')) + ".bin");
        }
        place_ = frames_ = 0;
        sizeBefore_ = 0;
    }

    /// Tracks of different sectors follow each other in a file, so the place is added up.
    void TakeBeginning(const QByteArray& time)
    {
        const qint64 frames = FramesOf(time);
        if (frames < frames_ || tracks_.size() >= mostTracksOfSheet)
            return;
        place_ += (frames - frames_) * (sizeBefore_ != 0 ? sizeBefore_ : SectorSize(mode_));
        frames_ = frames;
        sizeBefore_ = SectorSize(mode_);
        if (mode_ != "AUDIO" && !file_.empty())
            tracks_.push_back({file_, place_});
    }

    std::string sheet_;
    std::string file_;
    QByteArray mode_;
    qint64 place_ = 0;
    qint64 frames_ = 0;
    int sizeBefore_ = 0;
    std::vector<ImageTrack> tracks_;
};

} // namespace

std::vector<ImageTrack> TracksOfCueSheet(const QByteArray& text, const std::string& sheetFile)
{
    SheetReader reader(sheetFile);
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray& line : lines)
        reader.Take(line.simplified());
    return reader.Tracks();
}

} // namespace torvik
