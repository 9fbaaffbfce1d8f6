#pragma once

#include <csignal>
#include <sys/resource.h>

namespace torvik {

/// While it lives no file of this process grows beyond a size, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        earlierHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &earlier_);
        rlimit limit = earlier_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &earlier_);
        std::signal(SIGXFSZ, earlierHandler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit earlier_{};
    void (*earlierHandler_)(int) = nullptr;
};

} // namespace torvik
