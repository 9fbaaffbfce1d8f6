#include "start/bind_start.h"

namespace torvik {

void BindStart()
{
    BindStartUp();
    BindMainWindowLife();
}

} // namespace torvik
