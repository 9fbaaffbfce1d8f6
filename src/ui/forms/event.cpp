#include "ui/forms/event.h"

#include "runtime/failure.h"
#include "ui/forms/message_box.h"
#include "ui/forms/program_end.h"

#include <exception>
#include <new>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void ReportUntrapped(const RunTimeError& error)
{
    try {
        QString text = u"Run-time error '%1':\r\n\r\n%2"_s.arg(error.Number()).arg(error.Text());
        if (!error.Hint().isEmpty())
            text += u"\r\n\r\n"_s + error.Hint();
        MsgBox(text, msgbox::critical);
        EndProgram();
    } catch (const ProgramEnd&) { // NOLINT(bugprone-empty-catch): the event loops are already told to end
    }
}

int runningHandlers = 0;

std::vector<std::function<void()>>& WorkAfterHandlers()
{
    static std::vector<std::function<void()>> work;
    return work;
}

} // namespace

HandlerScope::HandlerScope()
{
    ++runningHandlers;
}

HandlerScope::~HandlerScope()
{
    if (--runningHandlers > 0)
        return;
    const auto waiting = std::exchange(WorkAfterHandlers(), {});
    for (const auto& work : waiting)
        work();
}

void HandlerScope::WhenAllAreDone(std::function<void()> work)
{
    if (runningHandlers == 0)
        work();
    else
        WorkAfterHandlers().push_back(std::move(work));
}

void RunHandler(const std::function<void()>& handler)
{
    if (ProgramIsEnding())
        return;
    const HandlerScope running;
    try {
        handler();
    } catch (const ProgramEnd&) { // NOLINT(bugprone-empty-catch): the event loops are already told to end
    } catch (const RunTimeError& error) {
        ReportUntrapped(error);
    } catch (const std::bad_alloc&) {
        ReportUntrapped(RunTimeError(failure::outOfMemory));
    } catch (const std::exception&) {
        ReportUntrapped(RunTimeError(failure::internalError));
    }
}

} // namespace torvik
