#pragma once

namespace torvik {

/// Whether a person reads what is printed, on a terminal, and not a file or another program.
bool OutputIsTerminal();
bool ErrorsAreTerminal();

/// Whether the output may carry colours: it is a terminal, and NO_COLOR is not set to anything.
bool OutputTakesColours();

} // namespace torvik
