#include "documents/bind_documents.h"
#include "documents/page_viewer.h"
#include "program/box_title.h"
#include "program/catalogue/articles.h"
#include "program/catalogue/pictures.h"
#include "program/keep_on_top.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "ui/forms/message_box.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/page_window.h"
#include "windows/play_list_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void FillScreen()
{
    frmScroll->SetWidth(Screen.Width());
    frmScroll->SetHeight(Screen.Height());
    frmScroll->SetTop(0);
    frmScroll->SetLeft(0);
}

/// There is no list of advertisements: a year without one is found out by trying to load it. The page is read
/// and decoded once; the view of the whole page, which lies behind the other, is drawn when it comes to
/// light.
void LoadPage()
{
    frmScrollControls& form = *frmScroll;
    form.picParent.Hide();
    form.picChild.Hide();
    form.picChild.Move(0, 0);
    state.DocumentFile = state.DiscRoot + AdvertisementOf(Form1->panYear.Caption());
    form.HScroll1.Hide();
    form.VScroll1.Hide();
    form.picChild.Load(state.DocumentFile);
    form.Image1.ShowWhenSeen(form.picChild.Picture(), form.picChild.Pixels());
    form.Image1.Move(form.picChild.Left(), form.picChild.Top(), 620, form.picParent.Height());
    form.Image1.ZOrder();
}

void ShowPage()
{
    ResumeNext([] {
        frmScroll->SetCaption(QLatin1String(pageTitle) + Form1->panYear.Caption() + u" Advertisement"_s);
    });
    ResumeNext(TurnFullSizeViewOver);
    ResumeNext([] { frmScroll->ShowModal(); });
}

/// The viewer stays loaded and hidden, ready for the next page.
void SaySorry()
{
    state.MessageText = u"Sorry!\r\n\r\nThe Year 2001 ad has not yet been released by Brenmoor.\r\n"_s;
    state.MessageAnswer = QString::number(MsgBox(state.MessageText, msgbox::exclamation, boxTitle));
    Form1->SetEnabled(true);
}

void cmdAd_Click()
{
    SetFormTopmost(*frmSSPhoto, topmost::off);
    frmSSPhoto.Unload();
    const bool loaded = OnError(
        [] {
            FillScreen();
            LoadPage();
        },
        SaySorry);
    if (loaded)
        ShowPage();
}

} // namespace

void BindAdvertisement()
{
    Form1.Bind([](Form1Controls& form) { form.cmdAd.Click = cmdAd_Click; });
}

} // namespace torvik
