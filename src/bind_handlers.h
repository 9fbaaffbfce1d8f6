#pragma once

namespace torvik {

/// Ties all handlers of the program to their controls. Called once, before the first form is touched.
void BindHandlers();

} // namespace torvik
