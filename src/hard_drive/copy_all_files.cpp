#include "hard_drive/copy_all_files.h"

#include "hard_drive/copy_file.h"
#include "hard_drive/copy_job.h"
#include "hard_drive/movie_list.h"
#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "program/box_title.h"
#include "program/photo_list.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/forms/input_hold.h"
#include "ui/forms/message_box.h"
#include "ui/forms/paint_pace.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

QString PhotoOfList(int index)
{
    const QString& path = state.PhotoFiles(index);
    const int closingBackslash = InStr(path, torviksFolder) + static_cast<int>(torviksFolder.size()) - 1;
    return Right(path, static_cast<int>(path.size()) - closingBackslash);
}

QString MovieOfList(int index)
{
    return state.MovieFiles(index);
}

void BeginCopying()
{
    Screen.SetMousePointer(MousePointer::Hourglass);
    state.CopyRemaining = PresentCopyJob().size;
    Form1->SetEnabled(false);
}

/// Copies the file that has the number `state.LoopIndex` in its list. Where the disc was changed and has
/// fewer files, the count is still that of the earlier disc and leads past the end of the list: that failure
/// is shown like that of a file.
void CopyFileOfList(QString (*nameOf)(int index))
{
    const QString& folder = PresentCopyJob().folder;
    const auto workOut = [&] {
        state.CopySource = nameOf(state.LoopIndex);
        state.CopyTarget = ProgramFolder() + folder + state.CopySource;
        state.CopySource = state.DiscRoot + folder + state.CopySource;
    };
    if (OnError(workOut, [] { MsgBox(RunTimeErrorText(PendingErrorNumber())); }))
        CopyFileWithGauges();
}

/// The play list enables Form1 when it is closed; that must let no second copy into this one.
void CopyFilesOfList(QString (*nameOf)(int index), const Integer& count)
{
    const InputHold hold(*Form1);
    const PaintPace pace(*Form1);
    for (state.LoopIndex = 1; state.LoopIndex <= count; state.LoopIndex += 1)
        CopyFileOfList(nameOf);
}

void EndCopying()
{
    Form1->ProgressGuage2.SetFloodPercent(100);
    Form1->ProgressGuage2.SetCaption(100);
    Screen.SetMousePointer(MousePointer::Default);
    state.MessageText = PresentCopyJob().done;
    state.MessageAnswer = QString::number(MsgBox(state.MessageText, msgbox::exclamation, boxTitle));
    Form1->SetEnabled(true);
}

} // namespace

void MakeCopyFolder(const QString& path)
{
    OnError([&] { MakeFolder(path); },
            [] {
                state.MessageResult = MsgBox(u"These files have already been copied\r\n"
                                             "to your hard drive.\r\n"
                                             "\r\n"
                                             "Would you like to copy them again?"_s,
                                             msgbox::question + msgbox::okCancel);
                if (state.MessageResult != msgbox::answerOk)
                    state.CopyDeclined = true;
            });
}

void CopyAllPhotos()
{
    BeginCopying();
    state.PhotoRoot = state.DiscRoot;
    BuildPhotoSet();
    CopyFilesOfList(PhotoOfList, state.PhotoCount);
    EndCopying();
}

void CopyAllMovies()
{
    BeginCopying();
    BuildMovieList();
    CopyFilesOfList(MovieOfList, state.MovieCount);
    EndCopying();
}

} // namespace torvik
