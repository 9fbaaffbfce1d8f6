#include "ui/media/file_source.h"

#include "runtime/failure.h"

namespace torvik {

std::unique_ptr<ByteSource> FileSource::Open(const Place& place)
{
    if (!place.on)
        return nullptr;
    try {
        return std::make_unique<FileSource>(place.on->Open(place.path));
    } catch (const RunTimeError&) {
        return nullptr;
    }
}

qsizetype FileSource::Read(char* target, qsizetype room)
{
    try {
        return file_->Read(target, room);
    } catch (const RunTimeError&) {
        return -1;
    }
}

bool FileSource::SeekTo(qint64 place)
{
    try {
        file_->SeekTo(place);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace torvik
