#include "program/play_list_buttons.h"

#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "program/photo_name.h"
#include "program/program_state.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

QString PlayListEntry()
{
    const QString folder = ProgramFolder() + playListFolder;
    if (Form1->panYear.Caption() == nothingChosen)
        return folder + u"ClassicTorviks.jpg"_s;
    TakePathPosition(state.CurrentPhotoFile);
    return folder + NameOfPhoto(state.CurrentPhotoFile);
}

void UpdatePlayListButtons()
{
    state.CopyTarget = PlayListEntry();
    const bool listed = FileExists(state.CopyTarget);
    frmSSPhoto->SSCommand7.SetEnabled(!listed);
    frmSSPhoto->SSCommand8.SetEnabled(listed);
}

} // namespace torvik
