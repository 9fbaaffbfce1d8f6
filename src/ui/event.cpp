#include "ui/event.h"

#include "platform/failure.h"
#include "ui/message_box.h"
#include "ui/program_end.h"

#include <new>

namespace torvik {

namespace {

void ReportUntrapped(const RunTimeError& error)
{
    try {
        MsgBox(QStringLiteral("Run-time error '%1':\r\n\r\n%2").arg(error.Number()).arg(error.Text()),
               msgbox::critical);
        EndProgram();
    } catch (const ProgramEnd&) { // NOLINT(bugprone-empty-catch): the event loops are already told to end
    }
}

} // namespace

void RunHandler(const std::function<void()>& handler)
{
    if (ProgramIsEnding())
        return;
    try {
        handler();
    } catch (const ProgramEnd&) { // NOLINT(bugprone-empty-catch): the event loops are already told to end
    } catch (const RunTimeError& error) {
        ReportUntrapped(error);
    } catch (const std::bad_alloc&) {
        ReportUntrapped(RunTimeError(failure::outOfMemory));
    }
}

} // namespace torvik
