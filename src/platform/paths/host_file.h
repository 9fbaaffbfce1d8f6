#pragma once

#include "platform/paths/volume.h"

namespace torvik {

/// A file of the host that is open for reading.
class HostFile : public OpenFile {
public:
    /// Failures: those of FailureOfSystem; 75 for what is no file (a folder, a device, a pipe).
    explicit HostFile(const std::string& hostPath);
    ~HostFile() override;

    qint64 Length() const override { return length_; }
    qsizetype Read(char* target, qsizetype room) override;
    void SeekTo(qint64 place) override;

private:
    [[noreturn]] void CloseAndFail(int number);

    std::string path_;
    int descriptor_ = -1;
    qint64 length_ = 0;
};

} // namespace torvik
