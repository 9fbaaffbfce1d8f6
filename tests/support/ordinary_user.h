#pragma once

#include <unistd.h>

namespace torvik {

/// Makes the process an ordinary user for as long as it lives, where the tests run as the administrator, whom
/// permission bits do not stop. `IsOne` tells whether it came about.
class OrdinaryUser {
public:
    OrdinaryUser()
    {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0)
            changed_ = seteuid(nobody) == 0;
    }
    ~OrdinaryUser()
    {
        if (changed_ && seteuid(0) != 0)
            _exit(1);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    static bool IsOne() { return geteuid() != 0; }
    /// What a test says where it did not.
    static constexpr const char* isNeeded = "This test needs an ordinary user: one who runs it, or user "
                                            "65534, which the administrator may become.";

private:
    bool changed_ = false;
};

} // namespace torvik
