#pragma once

#include "rtf/metafile/gdi_state.h"

#include <vector>

namespace torvik::rtf {

/// The objects of a drawing by number.
class GdiObjects {
public:
    /// Puts an object into the lowest free place.
    void Add(GdiObject object);
    void Put(std::size_t place, GdiObject object);
    void Remove(std::size_t place);
    void Select(std::size_t place, GdiState& state) const;
    static void Select(const GdiObject& object, GdiState& state);

private:
    struct Place { // NOLINT(bugprone-exception-escape): the moves of Qt's classes do not throw
        bool isTaken = false;
        GdiObject object;
    };
    static constexpr std::size_t maxObjects = 4096;
    std::vector<Place> places_;
};

} // namespace torvik::rtf
