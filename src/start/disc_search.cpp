#include "start/disc_search.h"

#include "platform/files/files.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/logging.h"
#include "runtime/text.h"
#include "ui/pictures/pictures_ahead.h"
#include "windows/splash.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// An empty drive or an unreadable medium is a folder without photos.
bool HoldsPhotos(const QString& root)
{
    QString first;
    const int error = ResumeNext([&] { first = FindFile(root + u"\\Torviks\\*.jpg"_s); });
    if (error != 0)
        qCDebug(logDisc, "%s cannot be searched: %s", qUtf8Printable(root),
                qUtf8Printable(RunTimeErrorText(error)));
    else if (first.isEmpty())
        qCDebug(logDisc, "%s has no photo in Torviks", qUtf8Printable(root));
    else
        qCDebug(logDisc, "%s has photos, the first is %s", qUtf8Printable(root), qUtf8Printable(first));
    return error == 0 && !first.isEmpty();
}

/// Tells what a letter stands for; nothing is searched for one that stands for nothing, but it counts as
/// tried.
void LogDrive(const QString& letter)
{
    const QString folder = DriveFolder(letter.front());
    qCDebug(logDisc, "drive %s: stands for %s", qUtf8Printable(letter),
            folder.isEmpty() ? "nothing" : qUtf8Printable(folder));
}

/// The letter of the first drive that holds the disc; empty when none does.
QString ScanDrives()
{
    state.DriveLetters = u"DEFGHIJKLMNOPQRSTUVWXYZ"_s;
    for (state.LoopIndex = 1; state.LoopIndex <= state.DriveLetters.size(); state.LoopIndex += 1) {
        QString letter = Mid(state.DriveLetters, state.LoopIndex, 1);
        LogDrive(letter);
        if (HoldsPhotos(letter + u":"_s))
            return letter;
    }
    return {};
}

} // namespace

void FindDisc()
{
    QString letter;
    for (;;) {
        state.ErrorCode = u"ER001"_s;
        ForgetPicturesAhead();
        ResumeNext(RefreshDrives);
        if (HoldsPhotos(ProgramFolder()))
            state.PhotoRoot = ProgramFolder();
        letter = ScanDrives();
        if (!letter.isEmpty())
            break;
        qCDebug(logDisc, "no drive holds the disc");
        Form2->Timer1.SetInterval(0);
        Form2.Unload();
        ReportError();
    }
    state.DiscRoot = letter + u":"_s;
    if (state.PhotoRoot.isEmpty())
        state.PhotoRoot = state.DiscRoot;
}

} // namespace torvik
