#include "utilities/bind_utilities.h"

namespace torvik {

void BindUtilities()
{
    BindHideTaskBar();
    BindDisplayCheck();
    BindSystemInformation();
    BindAboutBox();
    BindHelpMenu();
}

} // namespace torvik
