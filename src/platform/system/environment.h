#pragma once

namespace torvik {

/// Gives a variable of the environment a value, unless the user has set one that is not empty.
void SetEnvironmentDefault(const char* variable, const char* value);

} // namespace torvik
