#include "program/run_and_wait.h"

#include "platform/system/process.h"
#include "ui/application.h"

namespace torvik {

void RunAndWait(const QString& commandLine)
{
    const RunningProcess process(commandLine);
    while (process.ExitCode() == RunningProcess::stillActive)
        WaitForEvents();
}

} // namespace torvik
