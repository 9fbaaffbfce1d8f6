#include "browser/browse_from_start.h"

#include "program/program_state.h"
#include "windows/main_window.h"

namespace torvik {

void BrowseFromStart()
{
    state.PhotoIndex = 0;
    Form1->panPhoto.SetCaption(1);
    state.SteppedForward = false;
    state.SteppedBackward = false;
}

} // namespace torvik
