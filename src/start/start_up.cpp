#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "platform/system/single_instance.h"
#include "program/catalogue/topics.h"
#include "program/photo_list.h"
#include "program/program_state.h"
#include "program/screen_size.h"
#include "runtime/logging.h"
#include "start/bind_start.h"
#include "start/disc_search.h"
#include "ui/forms/message_box.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"
#include "windows/splash.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int splashTime = 5000; // milliseconds

void RefuseSecondInstance()
{
    if (!PreviousInstance())
        return;
    qCDebug(logStart, "another instance of this user is running");
    MsgBox(u"The Torvik Vollandry is already running!"_s, msgbox::systemModal | msgbox::critical);
    EndProgram();
}

/// Plays without being waited for; a program folder without the sound stays silent.
void PlayPassby()
{
    state.SoundFile = ProgramFolder() + u"\\passby.wav"_s;
    if (!FileExists(state.SoundFile))
        return;
    PlayWave(Form2->MMControl1, state.SoundFile);
    state.ErrorCode = u"ER055"_s;
}

void Form2_Load()
{
    Form2->Show();
    Form2->Refresh();
    RefuseSecondInstance();
    FindDisc();
    if (!Form2->Visible()) // a search that failed at first has taken the splash away
        Form2->Show();
    PlayPassby();
    Form2->Timer1.SetInterval(splashTime);
    state.FirstActivation = true;
    BuildPhotoSet();
    qCDebug(logStart, "%d photos from %s, all else from %s", int(state.PhotoCount),
            qUtf8Printable(state.PhotoRoot), qUtf8Printable(state.DiscRoot));
}

/// Where the screen is not the one that the window was drawn for, the window takes a size that suits it
/// anywhere.
void FitForm1ToScreen()
{
    if (IsScreenSize(800, 600))
        return;
    Form1->mnuHideStatus.SetEnabled(false);
    Form1->SetWidth(11994);
    Form1->SetHeight(9100);
    Form1->Frame1.SetTop(Form1->Image4.Top() + Form1->Image4.Height() + 10);
}

void FillYearLists()
{
    for (int index = 1; index <= yearCount; ++index) {
        Form1->List1(0).AddItem(YearOfButton(index));
        Form1->List1(1).AddItem(YearOfButton(index));
    }
}

void Timer1_Timer()
{
    FitForm1ToScreen();
    Form1.LoadForm();
    FillYearLists();
}

} // namespace

void BindStartUp()
{
    Form2.Bind([](Form2Controls& form) {
        form.Load = Form2_Load;
        form.Timer1.Tick = Timer1_Timer;
    });
}

} // namespace torvik
