#pragma once

#include "runtime/failure.h"

#include <cstddef>
#include <vector>

namespace torvik {

/// An array whose elements are counted from 1; an index outside the bounds is failure 9, Subscript out of
/// range.
template <typename T>
class OneBasedArray {
public:
    /// Bounds become 1 to `count`; what fits of the contents is kept, new elements are empty.
    /// A negative count is failure 9.
    void Resize(int count)
    {
        if (count < 0)
            Fail(failure::subscript);
        items_.resize(static_cast<std::size_t>(count));
    }
    int Count() const { return static_cast<int>(items_.size()); }

    T& operator()(int index) { return items_[Position(index)]; }
    const T& operator()(int index) const { return items_[Position(index)]; }

    auto begin() { return items_.begin(); }
    auto begin() const { return items_.begin(); }
    auto end() { return items_.end(); }
    auto end() const { return items_.end(); }

private:
    std::size_t Position(int index) const
    {
        if (index < 1 || index > Count())
            Fail(failure::subscript);
        return static_cast<std::size_t>(index - 1);
    }

    std::vector<T> items_;
};

} // namespace torvik
