#include "platform/files/file_mark.h"

#include "platform/files/file_content.h"
#include "platform/paths/drives.h"

namespace torvik {

FileMark FileMark::Of(const Place& place)
{
    FileMark mark;
    mark.volume_ = place.on->Number();
    mark.path_ = place.path;
    mark.status_ = place.on->Status(place.path);
    return mark;
}

FileMark FileMark::Of(const QString& path)
{
    return Of(PlaceOf(path));
}

bool FileMark::operator==(const FileMark& other) const
{
    return volume_ != 0 && volume_ == other.volume_ && path_ == other.path_ && status_ == other.status_;
}

std::function<MarkedContent()> FileToFindAndRead(const QString& path)
{
    return [place = UnspelledPlaceOf(path)] {
        const Place found{place.on, place.on->Spelling(place.path)};
        // The mark comes first: what changes while it is read has another one afterwards.
        const FileMark mark = FileMark::Of(found);
        return MarkedContent{ContentOf(found), mark};
    };
}

} // namespace torvik
