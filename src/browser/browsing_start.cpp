#include "browser/browsing_start.h"

#include "shell/form1.h"
#include "shell/program_state.h"

namespace torvik {

void BrowseFromStart()
{
    state.PhotoIndex = 0;
    Form1->panPhoto.SetCaption(1);
    state.SteppedForward = false;
    state.SteppedBackward = false;
}

} // namespace torvik
