#pragma once

#include <string>

namespace torvik {

/// The run-time failure for a call on the path `hostPath` that ended with the system's error number `error`:
/// 53 or 76 when it is missing (76 when its folder is missing too), 70 when it is not allowed, 61 on a full
/// disk, 57 for an error of the device, 58 when it exists already, 67 with too many files open, 68 when the
/// device is gone, 7 without memory, 75 for all else.
int FailureOfSystem(int error, const std::string& hostPath);

} // namespace torvik
