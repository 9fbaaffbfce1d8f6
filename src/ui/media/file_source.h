#pragma once

#include "av/byte_source.h"
#include "platform/paths/volume.h"

#include <memory>

namespace torvik {

/// The bytes of a file. A disc that fails in the middle ends it.
class FileSource : public ByteSource {
public:
    /// Null when the file cannot be opened, and for a place on no volume.
    static std::unique_ptr<ByteSource> Open(const Place& place);

    explicit FileSource(std::unique_ptr<OpenFile> file) : file_(std::move(file)) {}

    qsizetype Read(char* target, qsizetype room) override;
    bool SeekTo(qint64 place) override;
    qint64 Length() const override { return file_->Length(); }

private:
    std::unique_ptr<OpenFile> file_;
};

} // namespace torvik
