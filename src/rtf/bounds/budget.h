#pragma once

#include <QtGlobal>

namespace torvik::rtf {

/// What one document may cost in memory, counted by estimate while it is built.
class Budget {
public:
    /// The allowance grows with the size of the file, in bytes.
    explicit Budget(qint64 fileBytes) : left_(base + perByte * fileBytes) {}

    /// Takes `bytes` off the allowance; false, and nothing taken, when less than that is left.
    bool Take(qint64 bytes)
    {
        if (bytes > left_) {
            exhausted_ = true;
            return false;
        }
        left_ -= bytes;
        return true;
    }
    /// Returns what was taken for something that is gone again.
    void GiveBack(qint64 bytes) { left_ += bytes; }
    qint64 Left() const { return left_; }
    /// Whether something had to be left out.
    bool Exhausted() const { return exhausted_; }

private:
    static constexpr qint64 base = 40LL * 1024 * 1024;
    static constexpr qint64 perByte = 14;
    qint64 left_;
    bool exhausted_ = false;
};

} // namespace torvik::rtf
