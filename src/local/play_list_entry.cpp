#include "local/play_list_entry.h"

#include "local/frm_ss_photo.h"
#include "platform/files.h"
#include "platform/program_folder.h"
#include "platform/text.h"
#include "shell/form1.h"
#include "shell/program_state.h"

namespace torvik {

QString PlayListEntry()
{
    const QString folder = ProgramFolder() + QStringLiteral("\\ssTorviks\\");
    if (Form1->panYear.Caption() == nothingChosen)
        return folder + QStringLiteral("ClassicTorviks.jpg");
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
