#include "hard_drive/bind_hard_drive.h"
#include "hard_drive/copy_file.h"
#include "platform/files/file_changes.h"
#include "platform/paths/program_folder.h"
#include "program/catalogue/other_files.h"
#include "program/keep_on_top.h"
#include "program/play_list_buttons.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "ui/desktop/clipboard.h"
#include "ui/forms/message_box.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void frmSSPhoto_Load()
{
    UpdatePlayListButtons();
    SetFormTopmost(*frmSSPhoto, topmost::on);
}

/// The file of the photo on show; the opening picture's lies beside the program.
QString ShownFile()
{
    if (Form1->panYear.Caption() == nothingChosen)
        return ProgramFolder() + pictureOfAll;
    return state.CurrentPhotoFile;
}

void SSCommand7_Click()
{
    frmSSPhoto->SetMousePointer(MousePointer::Hourglass);
    state.CopySource = ShownFile();
    state.CopyTarget = PlayListEntry();
    CopyFileWithGauge(state.CopySource, state.CopyTarget, frmSSPhoto->ProgressGuage);
    frmSSPhoto->SetMousePointer(MousePointer::Default);
    MsgBox(u"Photo Successfully Copied!"_s, msgbox::exclamation);
    frmSSPhoto->SSCommand7.SetEnabled(false);
    frmSSPhoto->SSCommand8.SetEnabled(true);
}

void SSCommand8_Click()
{
    frmSSPhoto->SetMousePointer(MousePointer::Hourglass);
    state.CopyTarget = PlayListEntry();
    DeleteFile(state.CopyTarget);
    frmSSPhoto->SetMousePointer(MousePointer::Default);
    MsgBox(u"Photo Successfully Removed!"_s, msgbox::exclamation);
    frmSSPhoto->SSCommand7.SetEnabled(true);
    frmSSPhoto->SSCommand8.SetEnabled(false);
    frmSSPhoto->ProgressGuage.SetFloodPercent(0);
}

void SSCommand2_Click()
{
    state.MessageResult = MsgBox(u"Would you like to remove all photos from the Torvik"
                                 " Vollandry Screen Saver list?"_s,
                                 msgbox::question + msgbox::yesNo);
    if (state.MessageResult != msgbox::answerYes)
        return;
    frmSSPhoto->SetMousePointer(MousePointer::Hourglass);
    ResumeNext([] { DeleteFilesMatching(ProgramFolder() + playListFolder + u"*.jpg"_s); });
    frmSSPhoto->SetMousePointer(MousePointer::Default);
    state.MessageText = u"All Photos Successfully Removed!\r\n"
                        "\r\n"
                        "You must re-install The Torvik Vollandry Screen Saver \r\n"
                        "if you have previously installed it to play Selected Photos."_s;
    MsgBox(state.MessageText);
    frmSSPhoto->SSCommand7.SetEnabled(true);
    frmSSPhoto->SSCommand8.SetEnabled(false);
    frmSSPhoto->SSCommand2.SetEnabled(false);
    frmSSPhoto->ProgressGuage.SetFloodPercent(0);
}

void SSCommand3_Click()
{
    Clipboard.Clear();
    Clipboard.SetPicture(Form1->Image4.Picture());
}

void SSCommand1_Click()
{
    state.MessageText = u"Use this form to add or remove Torvik photos from the\r\n"
                        "Torvik Vollandry Screen Saver play list. Pick and choose\r\n"
                        "whatever photos that you would like to include.\r\n"
                        "\r\n"
                        "Select the Install Screen Saver option under the File menu\r\n"
                        "to configure the Screen Saver to recognize selected photos.\r\n"
                        "\r\n"
                        "If you remove all photos, remember to re-install the \r\n"
                        "Screen Saver and choose the Select All Photos option."_s;
    MsgBox(state.MessageText);
}

void SSCommand9_Click()
{
    SetFormTopmost(*frmSSPhoto, topmost::off);
    frmSSPhoto.Unload();
}

void frmSSPhoto_Unload()
{
    Form1->SetEnabled(true);
}

} // namespace

void BindPlayList()
{
    frmSSPhoto.Bind([](frmSSPhotoControls& form) {
        form.Load = frmSSPhoto_Load;
        form.Unload = frmSSPhoto_Unload;
        form.SSCommand7.Click = SSCommand7_Click;
        form.SSCommand8.Click = SSCommand8_Click;
        form.SSCommand2.Click = SSCommand2_Click;
        form.SSCommand3.Click = SSCommand3_Click;
        form.SSCommand1.Click = SSCommand1_Click;
        form.SSCommand9.Click = SSCommand9_Click;
    });
}

} // namespace torvik
