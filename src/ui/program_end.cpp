#include "ui/program_end.h"

#include <QCoreApplication>

namespace torvik {

namespace {
bool ending = false;
}

void EndProgram()
{
    ending = true;
    QCoreApplication::exit(0);
    throw ProgramEnd();
}

bool ProgramIsEnding()
{
    return ending;
}

void LeaveIfEnding()
{
    if (ending)
        throw ProgramEnd();
}

void ForgetProgramEnd()
{
    ending = false;
}

} // namespace torvik
