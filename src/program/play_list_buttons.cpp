#include "program/play_list_buttons.h"

#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "runtime/text.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

QString PlayListEntry()
{
    const QString folder = ProgramFolder() + u"\\ssTorviks\\"_s;
    if (Form1->panYear.Caption() == nothingChosen)
        return folder + u"ClassicTorviks.jpg"_s;
    state.TorviksPathPos = InStr(state.CurrentPhotoFile, torviksFolder);
    return folder +
           Mid(state.CurrentPhotoFile, state.TorviksPathPos + static_cast<int>(torviksFolder.size()));
}

void UpdatePlayListButtons()
{
    state.CopyTarget = PlayListEntry();
    const bool listed = FileExists(state.CopyTarget);
    frmSSPhoto->SSCommand7.SetEnabled(!listed);
    frmSSPhoto->SSCommand8.SetEnabled(listed);
}

} // namespace torvik
