#pragma once

#include "runtime/failure.h"

#include <cstdint>

namespace torvik {

/// A signed 16-bit whole number whose every assignment is checked: a value outside -32768 to 32767 is
/// failure 6, Overflow. Reading gives a plain int, so arithmetic is done wide and checked when it is stored.
class Integer {
public:
    constexpr Integer() = default;
    Integer(int value) : value_(Checked(value)) {} // NOLINT(google-explicit-constructor)

    operator int() const { return value_; } // NOLINT(google-explicit-constructor)
    Integer& operator+=(int by)
    {
        value_ = Checked(std::int64_t{value_} + by);
        return *this;
    }
    Integer& operator-=(int by)
    {
        value_ = Checked(std::int64_t{value_} - by);
        return *this;
    }

private:
    static std::int16_t Checked(std::int64_t value)
    {
        if (value < INT16_MIN || value > INT16_MAX)
            Fail(failure::overflow);
        return static_cast<std::int16_t>(value);
    }

    std::int16_t value_ = 0;
};

} // namespace torvik
