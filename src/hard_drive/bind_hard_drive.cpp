#include "hard_drive/bind_hard_drive.h"

namespace torvik {

void BindHardDrive()
{
    BindCopyPhotosAndMovies();
    BindRemoveCopies();
    BindPlayList();
    BindSaverPanelButtons();
}

} // namespace torvik
