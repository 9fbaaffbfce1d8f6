#include "platform/system/terminal.h"

#include <QtGlobal>

#include <unistd.h>

namespace torvik {

bool OutputIsTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

bool ErrorsAreTerminal()
{
    return isatty(STDERR_FILENO) != 0;
}

bool OutputTakesColours()
{
    return OutputIsTerminal() && qEnvironmentVariableIsEmpty("NO_COLOR");
}

} // namespace torvik
