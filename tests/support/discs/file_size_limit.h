#pragma once

#include <sys/resource.h>

namespace torvik {

/// No file can grow beyond `bytes` while it lives; to the program that is a full disk. What lies past the
/// limit in an existing file stays.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        const bool isKnown = getrlimit(RLIMIT_FSIZE, &before_) == 0;
        const rlimit limit{bytes, before_.rlim_max};
        isSet_ = isKnown && setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FileSizeLimit()
    {
        if (isSet_)
            setrlimit(RLIMIT_FSIZE, &before_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

    bool IsSet() const { return isSet_; }

private:
    rlimit before_{};
    bool isSet_ = false;
};

} // namespace torvik
