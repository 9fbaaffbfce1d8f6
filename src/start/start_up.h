#pragma once

namespace torvik {

/// Ties the splash window to its handlers: its Load starts the program, its timer hands over to Form1.
void BindStartUp();

} // namespace torvik
