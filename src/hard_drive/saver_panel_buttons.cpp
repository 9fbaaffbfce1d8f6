#include "documents/article_viewer.h"
#include "hard_drive/bind_hard_drive.h"
#include "hard_drive/copy_photos_and_movies.h"
#include "hard_drive/windows_folder_name.h"
#include "platform/files/file_changes.h"
#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "platform/system/saver_agreement.h"
#include "platform/system/settings_store.h"
#include "program/catalogue/articles.h"
#include "program/catalogue/other_files.h"
#include "program/panel_over_year_bar.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "program/slide_delay_steps.h"
#include "runtime/failure.h"
#include "ui/application.h"
#include "ui/forms/message_box.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int selectedPhotos = 1;

const QString anyPhoto = u"*.jpg"_s;

const QString copyQuestion = u"To improve performance, the Torvik photos may be copied from\r\n"
                             "the Torvik Vollandry CDROM to your hard drive before you install\r\n"
                             "the Torvik Vollandry Screen Saver.\r\n"
                             "\r\n"
                             "Would you like to copy the photos now?"_s;

const QString installed = u"The Torvik Vollandry Screen Saver has been installed!\r\n"
                          "\r\n"
                          "If you have not already done so, you must now activate \r\n"
                          "the Torvik Vollandry Screen Saver.\r\n"
                          "\r\n"
                          "To do this follow these steps:\r\n"
                          "    1) Click the Start button on the Windows desktop \r\n"
                          "    2) Click the Settings button                    \r\n"
                          "    3) Click on Control Panel                       \r\n"
                          "    4) Double click on the Display icon             \r\n"
                          "    5) Select the Screen Saver tab                  \r\n"
                          "    6) Click the dropdown arrow to the left of the Settings button\r\n"
                          "    7) Select Torvik2001                           \r\n"
                          "    8) Click OK                            "_s;

bool HasPhotos(const QString& folder)
{
    return !FindFile(folder + anyPhoto).isEmpty();
}

QString CopiedPhotos()
{
    return ProgramFolder() + torviksFolder;
}

void mnuSaver_Click()
{
    constexpr double distance = 5; // pixels
    Form1Controls& form = *Form1;
    form.pnlSSaver.SetTop(form.Image4.Top() + distance);
    CentreOverYearBar(form.pnlSSaver);
    form.pnlSSaver.ZOrder();
    form.Option1(selectedPhotos).SetEnabled(HasPhotos(ProgramFolder() + playListFolder));
    form.pnlSSaver.Show();
    form.SSCommand6.ZOrder();
    form.SSCommand6.SetCaption(u"Cancel"_s);
    constexpr int second = 1000; // milliseconds
    state.SlideDelay = second;   // whatever panInterval still shows
}

void ShowDelay()
{
    Form1->panInterval.SetCaption(DelayInSeconds(state.SlideDelay) + u" Seconds"_s);
}

/// The user works the copy panel meanwhile. If no copy is ever made, the wait has no end.
void WaitForCopies()
{
    state.CopyForSaver = true;
    state.CopyingPhotos = true;
    ShowCopyPanel();
    while (state.CopyForSaver)
        WaitForEvents();
}

QString AskForPhotoFolder()
{
    state.MessageText = copyQuestion;
    state.MessageResult = MsgBox(state.MessageText, msgbox::question | msgbox::yesNo);
    if (state.MessageResult != msgbox::answerYes)
        return state.DiscRoot + torviksFolder;
    WaitForCopies();
    return CopiedPhotos();
}

void Install(const QString& windowsFolder, const QString& photoFolder)
{
    SaveSetting(saver::settings, saver::section, saver::interval, DelayInSeconds(state.SlideDelay));
    SaveSetting(saver::settings, saver::section, saver::photoFolder, photoFolder);
    state.CopySource = ProgramFolder() + u'\\' + saver::programFile;
    state.CopyTarget = windowsFolder + u'\\' + saver::programFile;
    ReplaceByCopy(state.CopySource, state.CopyTarget);
    state.MessageText = installed;
    MsgBox(state.MessageText);
    Form1->SSCommand6.SetCaption(u"Exit"_s);
}

void SSCommand4_Click()
{
    const QString windowsFolder = WindowsFolderName();
    const bool selected = Form1->Option1(selectedPhotos).Value();
    const bool ask = !selected && !HasPhotos(CopiedPhotos());
    OnError(
        [&] {
            const QString prepared = selected ? ProgramFolder() + playListFolder : CopiedPhotos();
            Install(windowsFolder, ask ? AskForPhotoFolder() : prepared);
        },
        [] {
            state.ErrorCode = u"ER049"_s;
            ReportError();
        });
}

void ShowHelp()
{
    const QString folder = state.DiscRoot + u"\\richtext\\"_s;
    const QString document = FindFile(state.DiscRoot + saverHelp);
    if (document.isEmpty()) {
        ReportError();
        return;
    }
    state.DocumentFile = folder + document;
    txtForm->SSCommand2.Hide();
    txtForm->SSCommand3.Hide();
    WidenOkButton();
    txtForm->rtbText.SetFileName(state.DocumentFile);
    txtForm->ShowModal();
}

void SSCommand5_Click()
{
    state.ErrorCode = u"ER052"_s;
    state.DocumentTitle = QLatin1String(wideTitle) + u"Install Screen Saver Help"_s;
    OnError(ShowHelp, ReportError);
}

} // namespace

void BindSaverPanelButtons()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuSaver.Click = mnuSaver_Click;
        BindDelaySteps(form.SpinInterval, ShowDelay);
        form.SSCommand4.Click = SSCommand4_Click;
        form.SSCommand5.Click = SSCommand5_Click;
        form.SSCommand6.Click = [] { Form1->pnlSSaver.Hide(); };
    });
}

} // namespace torvik
