#include "hard_drive/remove_copies.h"

#include "platform/files/file_changes.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "ui/forms/message_box.h"
#include "windows/main_window.h"

namespace torvik {

namespace {

bool AskToRemove(const QString& what)
{
    state.MessageResult = MsgBox(
        QStringLiteral("Would you like to remove all Torvik Vollandry %1 from your hard drive?").arg(what),
        msgbox::question + msgbox::yesNo);
    return state.MessageResult == msgbox::answerYes;
}

/// Deletes the copies in the program folder's `folder`, "\Torviks\", and then the folder, as far as both can
/// be. Where that very folder serves as the disc, there is no copy to remove.
void RemoveCopies(const QString& folder, const QString& pattern)
{
    const QString copies = ProgramFolder() + folder;
    state.CopyTarget = copies + pattern;
    if (IsSameFile(copies, state.DiscRoot + folder))
        return;
    ResumeNext([] { DeleteFilesMatching(state.CopyTarget); });
    ResumeNext([&] { RemoveFolder(copies); });
}

void mnuRemove_Click()
{
    if (!AskToRemove(QStringLiteral("photos")))
        return;
    Form1->SetMousePointer(MousePointer::Hourglass);
    RemoveCopies(torviksFolder, QStringLiteral("*.jpg"));
    Form1->SetMousePointer(MousePointer::Default);
    state.PhotoRoot = state.DiscRoot;
    state.MessageText = QStringLiteral("All Photos Successfully Removed!\r\n"
                                       "\r\n"
                                       "You must now exit and re-enter the Torvik Vollandry to allow \r\n"
                                       "the software to find the photos on the cdrom drive.\r\n"
                                       "\r\n"
                                       "You must also re-install the Torvik Vollandry Screen Saver \r\n"
                                       "if you have previously installed it.");
    MsgBox(state.MessageText);
    Form1.Unload();
}

void mnuRemoveMovies_Click()
{
    if (!AskToRemove(QStringLiteral("movies")))
        return;
    Form1->SetMousePointer(MousePointer::Hourglass);
    RemoveCopies(QStringLiteral("\\movies\\"), QStringLiteral("*.avi"));
    state.MessageText = QStringLiteral("All movies successfully removed!");
    MsgBox(state.MessageText);
    Form1->SetMousePointer(MousePointer::Default);
}

} // namespace

void BindRemoveCopies()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuRemove.Click = mnuRemove_Click;
        form.mnuRemoveMovies.Click = mnuRemoveMovies_Click;
    });
}

} // namespace torvik
