#pragma once

#include "av/byte_source.h"

#include <QByteArray>

#include <algorithm>
#include <utility>

namespace torvik {

/// A file that is bytes in memory.
class BytesInMemory : public ByteSource {
public:
    explicit BytesInMemory(QByteArray bytes) : bytes_(std::move(bytes)) {}

    qsizetype Read(char* target, qsizetype room) override
    {
        const qsizetype part = std::clamp<qsizetype>(bytes_.size() - place_, 0, room);
        std::copy_n(bytes_.constData() + std::min(place_, bytes_.size()), part, target);
        place_ += part;
        return part;
    }
    bool SeekTo(qint64 place) override
    {
        place_ = place;
        return true;
    }
    qint64 Length() const override { return bytes_.size(); }

private:
    QByteArray bytes_;
    qsizetype place_ = 0;
};

} // namespace torvik
