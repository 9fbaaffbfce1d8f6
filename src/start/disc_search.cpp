#include "start/disc_search.h"

#include "platform/files/files.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "windows/splash.h"

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
