#include "hard_drive/copy_photos_and_movies.h"

#include "hard_drive/bind_hard_drive.h"
#include "hard_drive/copy_all_files.h"
#include "hard_drive/copy_job.h"
#include "hard_drive/free_space.h"
#include "platform/paths/program_folder.h"
#include "program/box_title.h"
#include "program/panel_over_year_bar.h"
#include "program/photo_list.h"
#include "program/program_state.h"
#include "ui/forms/message_box.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void PlacePanel()
{
    constexpr float distance = 60; // pixels
    Form1->pnlProgress.SetTop(static_cast<float>(Form1->cmdDesc.Top()) + distance);
    CentreOverYearBar(Form1->pnlProgress);
}

QString TooLittleRoom(qint64 free, qint64 demanded)
{
    return u"Not enough available hard disk space to copy photos.\r\n\r\n"
           "Free some up and try again.\r\n\r\n"
           "You have:  "_s +
           GroupedDigits(free) + u" bytes\r\n\r\nYou need:   "_s + GroupedDigits(demanded - free) +
           u" bytes more\r\n\r\nFor a total of:   "_s + GroupedDigits(demanded) + u" bytes free.\r\n"_s;
}

void OpenPanel()
{
    Form1Controls& form = *Form1;
    for (Panel* gauge : {&form.ProgressGuage, &form.ProgressGuage2}) {
        gauge->SetFloodPercent(0);
        gauge->SetCaption(0);
    }
    form.pnlProgress.ZOrder();
    form.pnlProgress.Show();
    form.cmdCopy.SetEnabled(true);
    form.cmdCancel.SetEnabled(true);
    form.cmdCancel.ZOrder();
}

void ClosePanelOfDeclinedCopy()
{
    Form1->cmdCopy.SetEnabled(true);
    Form1->cmdCancel.SetEnabled(true);
    Form1->pnlProgress.Hide();
}

void CopyAll()
{
    if (!state.CopyingPhotos) {
        CopyAllMovies();
        return;
    }
    CopyAllPhotos();
    state.PhotoRoot = ProgramFolder();
    BuildPhotoSet();
}

void cmdCopy_Click()
{
    const QString targetFolder = ProgramFolder() + PresentCopyJob().folder;
    Form1->cmdCopy.SetEnabled(false);
    Form1->cmdCancel.SetEnabled(false);
    Form1->pnlProgress.Show();
    state.CopyDeclined = false;
    MakeCopyFolder(targetFolder);
    if (state.CopyDeclined) {
        ClosePanelOfDeclinedCopy();
        return;
    }
    CopyAll();
    Form1->pnlProgress.Hide();
    state.CopyForSaver = false;
}

void cmdCancel_Click()
{
    Form1->pnlProgress.Hide();
}

void OpenFor(bool photos)
{
    Form1->Text1.SetText(u" "_s);
    state.CopyingPhotos = photos;
    ShowCopyPanel();
}

} // namespace

void ShowCopyPanel()
{
    const CopyJob& job = PresentCopyJob();
    Form1->Label2.SetCaption(job.heading);
    Form1->cmdCopy.SetCaption(job.button);
    PlacePanel();

    qint64 total = 0;
    qint64 free = 0;
    QString drive = u"E"_s;
    GetDiskSpace(total, free, drive);
    constexpr int bytesInUnit = 1000;
    free *= bytesInUnit;
    if (free < job.roomDemanded) {
        state.MessageText = TooLittleRoom(free, job.roomDemanded);
        MsgBox(state.MessageText, msgbox::critical, boxTitle);
        return;
    }
    OpenPanel();
}

void BindCopyPhotosAndMovies()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuCopy.Click = [] { OpenFor(true); };
        form.mnuCopyMovies.Click = [] { OpenFor(false); };
        form.cmdCopy.Click = cmdCopy_Click;
        form.cmdCancel.Click = cmdCancel_Click;
    });
}

} // namespace torvik
