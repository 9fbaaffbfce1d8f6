#include "browser/bind_browser.h"
#include "program/photo_name.h"
#include "program/program_state.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void HideFileName()
{
    Form1->mnuNames.SetCaption(u"Show File &Names"_s);
    state.ShowFileNames = false;
    Form1->txtFile.Hide();
}

void ShowFileName()
{
    state.ShowFileNames = true;
    Form1->mnuNames.SetCaption(u"Hide File &Names"_s);
    if (state.PhotoIndex == 0)
        TakePathPosition(state.CurrentPhotoFile);
    Form1->txtFile.SetText(NameOfPhoto(state.CurrentPhotoFile));
    Form1->txtFile.Show();
    Form1->txtFile.ZOrder();
}

void mnuNames_Click()
{
    if (Form1->panYear.Caption() == nothingChosen)
        return;
    if (state.ShowFileNames)
        HideFileName();
    else
        ShowFileName();
}

} // namespace

void BindShowFileNames()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuNames.Click = mnuNames_Click;
        form.txtFile.Click = HideFileName;
    });
}

} // namespace torvik
