#include "support/other_instance.h"

#include "platform/system/single_instance.h"

#include <QtGlobal>

#include <sys/wait.h>
#include <unistd.h>

namespace torvik {

OtherInstance::OtherInstance() : child_(-1), leave_(-1)
{
    int claimed[2];
    int leave[2];
    if (pipe(claimed) != 0 || pipe(leave) != 0)
        qFatal("no pipe for the other instance");
    child_ = fork();
    if (child_ == 0) {
        close(leave[1]);
        const char answer = PreviousInstance() ? 'n' : 'y';
        char nothing = 0;
        if (write(claimed[1], &answer, 1) == 1)
            (void)!read(leave[0], &nothing, 1);
        _exit(0);
    }
    close(leave[0]);
    leave_ = leave[1];
    char answer = 0;
    if (read(claimed[0], &answer, 1) != 1 || answer != 'y')
        qFatal("the other instance could not be started");
    close(claimed[0]);
    close(claimed[1]);
}

OtherInstance::~OtherInstance()
{
    close(leave_);
    waitpid(child_, nullptr, 0);
}

} // namespace torvik
