#pragma once

namespace torvik {

/// Makes the application swallow all input for forms that are disabled. Safe to call more than once.
void WatchDisabledForms();

} // namespace torvik
