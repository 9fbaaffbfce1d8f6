#include "rtf/metafile/gdi_objects.h"

#include <algorithm>
#include <utility>

namespace torvik::rtf {

void GdiObjects::Add(GdiObject object)
{
    const auto free = std::find_if(places_.begin(), places_.end(), [](const Place& p) { return !p.isTaken; });
    Put(static_cast<std::size_t>(free - places_.begin()), std::move(object));
}

void GdiObjects::Put(std::size_t place, GdiObject object)
{
    if (place >= maxObjects)
        return;
    if (place >= places_.size())
        places_.resize(place + 1);
    places_[place] = {true, std::move(object)};
}

void GdiObjects::Remove(std::size_t place)
{
    if (place < places_.size())
        places_[place] = Place();
}

void GdiObjects::Select(std::size_t place, GdiState& state) const
{
    if (place < places_.size())
        Select(places_[place].object, state);
}

void GdiObjects::Select(const GdiObject& object, GdiState& state)
{
    if (const auto* pen = std::get_if<QPen>(&object))
        state.pen = *pen;
    else if (const auto* brush = std::get_if<QBrush>(&object))
        state.brush = *brush;
    else if (const auto* font = std::get_if<GdiFont>(&object))
        state.font = *font;
}

} // namespace torvik::rtf
