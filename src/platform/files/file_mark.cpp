#include "platform/files/file_mark.h"

#include "platform/files/file_content.h"
#include "platform/paths/drives.h"

namespace torvik {

FileMark FileMark::Of(const Place& place)
{
    FileMark mark;
    mark.on_ = place.On;
    mark.path_ = place.Path;
    mark.status_ = place.On->Status(place.Path);
    return mark;
}

FileMark FileMark::Of(const QString& path)
{
    return Of(PlaceOf(path));
}

/// A volume that is gone is none of those that are there, even if a new one lies where it lay in memory.
bool FileMark::operator==(const FileMark& other) const
{
    const std::shared_ptr<const Volume> mine = on_.lock();
    return mine && mine == other.on_.lock() && path_ == other.path_ && status_ == other.status_;
}

std::function<MarkedContent()> FileToFindAndRead(const QString& path)
{
    return [place = UnspelledPlaceOf(path)] {
        const Place found{place.On, place.On->Spelling(place.Path)};
        // The mark comes first: what changes while it is read has another one afterwards.
        const FileMark mark = FileMark::Of(found);
        return MarkedContent{ContentOf(found), mark};
    };
}

} // namespace torvik
