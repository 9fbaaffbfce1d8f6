#include "ui/forms/program_end.h"

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
    if (ending && QCoreApplication::instance() != nullptr) {
        // Qt starts no event loop any more until the program's outermost one has ended.
        QMetaObject::invokeMethod(
            qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
        QCoreApplication::exec();
    }
    ending = false;
}

} // namespace torvik
