#pragma once

namespace torvik {

/// Thrown through the handlers when the program ends at once; nothing but the edge of a handler catches it.
class ProgramEnd {};

/// Ends the program at once: no form is asked, nothing is saved, no statement after the call runs.
[[noreturn]] void EndProgram();

/// True from EndProgram on.
bool ProgramIsEnding();

/// Every call that let other handlers run ends with this: if one of them ended the program, the caller must
/// not go on either.
void LeaveIfEnding();

/// Lets a test begin again after a program that ended.
void ForgetProgramEnd();

} // namespace torvik
