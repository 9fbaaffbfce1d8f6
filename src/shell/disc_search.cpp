#include "shell/disc_search.h"

#include "platform/drives.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/program_folder.h"
#include "platform/text.h"
#include "shell/form2.h"
#include "shell/program_state.h"
#include "shell/report_error.h"

namespace torvik {

namespace {

/// An empty drive or an unreadable medium is a folder without photos.
bool HoldsPhotos(const QString& root)
{
    QString first;
    const int error = ResumeNext([&] { first = FindFile(root + QStringLiteral("\\Torviks\\*.jpg")); });
    return error == 0 && !first.isEmpty();
}

/// The letter of the first drive that holds the disc; empty when none does.
QString ScanDrives()
{
    state.DriveLetters = QStringLiteral("DEFGHIJKLMNOPQRSTUVWXYZ");
    for (state.LoopIndex = 1; state.LoopIndex <= state.DriveLetters.size(); state.LoopIndex += 1) {
        QString letter = Mid(state.DriveLetters, state.LoopIndex, 1);
        if (HoldsPhotos(letter + QStringLiteral(":")))
            return letter;
    }
    return {};
}

} // namespace

void FindDisc()
{
    QString letter;
    for (;;) {
        state.ErrorCode = QStringLiteral("ER001");
        ResumeNext(RefreshDrives);
        if (HoldsPhotos(ProgramFolder()))
            state.PhotoRoot = ProgramFolder();
        letter = ScanDrives();
        if (!letter.isEmpty())
            break;
        Form2->Timer1.SetInterval(0);
        Form2.Unload();
        ReportError();
    }
    state.DiscRoot = letter + QStringLiteral(":");
    if (state.PhotoRoot.isEmpty())
        state.PhotoRoot = state.DiscRoot;
}

} // namespace torvik
