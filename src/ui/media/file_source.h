#pragma once

#include "av/byte_source.h"
#include "platform/files/open_file.h"

#include <memory>
#include <string>

namespace torvik {

/// The bytes of a file of the host. A disc that fails in the middle ends it.
class FileSource : public ByteSource {
public:
    /// Null when the file cannot be opened.
    static std::unique_ptr<ByteSource> Open(const std::string& hostPath);

    explicit FileSource(const std::string& hostPath) : file_(hostPath) {}

    qsizetype Read(char* target, qsizetype room) override;
    bool SeekTo(qint64 place) override;
    qint64 Length() const override { return file_.Length(); }

private:
    OpenFile file_;
};

} // namespace torvik
