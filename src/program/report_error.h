#pragma once

namespace torvik {

/// Shows the message of `state.ErrorCode`. Called from inside the handler of a failure, or after a plain "not
/// found" test. Where the code lets the user retry, Retry returns and Cancel ends the program at once; every
/// other code moves the focus to the next year button, unless a failure is pending, and enables Form1.
/// A failure while the focus is moved is the caller's.
void ReportError();

} // namespace torvik
