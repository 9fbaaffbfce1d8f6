#pragma once

#include <sys/types.h>

namespace torvik {

/// Another process that is the running instance of the program for as long as this lives.
class OtherInstance {
public:
    OtherInstance();
    ~OtherInstance();
    OtherInstance(const OtherInstance&) = delete;
    OtherInstance& operator=(const OtherInstance&) = delete;

private:
    pid_t child_;
    int leave_; ///< closing it lets the child go
};

} // namespace torvik
