#include "hard_drive/bind_hard_drive.h"
#include "platform/files/file_changes.h"
#include "platform/paths/program_folder.h"
#include "program/catalogue/movies_and_sounds.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "ui/forms/message_box.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

bool AskToRemove(const QString& what)
{
    state.MessageResult =
        MsgBox(u"Would you like to remove all Torvik Vollandry %1 from your hard drive?"_s.arg(what),
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
    if (!AskToRemove(u"photos"_s))
        return;
    Form1->SetMousePointer(MousePointer::Hourglass);
    RemoveCopies(torviksFolder, u"*.jpg"_s);
    Form1->SetMousePointer(MousePointer::Default);
    state.PhotoRoot = state.DiscRoot;
    state.MessageText = u"All Photos Successfully Removed!\r\n"
                        "\r\n"
                        "You must now exit and re-enter the Torvik Vollandry to allow \r\n"
                        "the software to find the photos on the cdrom drive.\r\n"
                        "\r\n"
                        "You must also re-install the Torvik Vollandry Screen Saver \r\n"
                        "if you have previously installed it."_s;
    MsgBox(state.MessageText);
    ResumeNext([] { Form1.Unload(); });
    EndProgram(); // also where the window's place could not be saved
}

void mnuRemoveMovies_Click()
{
    if (!AskToRemove(u"movies"_s))
        return;
    Form1->SetMousePointer(MousePointer::Hourglass);
    RemoveCopies(movieFolder, u"*.avi"_s);
    state.MessageText = u"All movies successfully removed!"_s;
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
