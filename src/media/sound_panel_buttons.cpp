#include "media/bind_media.h"
#include "platform/files/files.h"
#include "program/catalogue/movies_and_sounds.h"
#include "program/panel_over_year_bar.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void mnuSound_Click()
{
    Form1Controls& form = *Form1;
    form.pnlSound.SetTop(form.Image4.Top());
    CentreOverYearBar(form.pnlSound);
    form.pnlSound.ZOrder();
    form.pnlSound.Show();
    form.SSCommand1.SetFocus();
}

void ReportSound()
{
    state.ErrorCode = u"ER038"_s;
    ReportError();
}

/// The code of the year holds the look-up, and keeps it: the next choice of a year sets it again.
void PlaySound(int index)
{
    state.SoundFile = state.DiscRoot + SoundOf(index);
    state.YearCode = QString::number(state.SoundFile.size());
    const QString wanted = Left(state.SoundFile, static_cast<int>(ToNumber(state.YearCode)));
    state.YearCode.clear(); // stays so when the disc is gone and cannot be asked
    state.YearCode = FindFile(wanted);
    if (state.YearCode.isEmpty()) {
        ReportSound();
        return;
    }
    PlayWave(Form1->MMControl1, state.SoundFile);
}

void SSCommand2_Click(int index)
{
    OnError([index] { PlaySound(index); }, ReportSound);
}

/// There is nothing left to play.
void SSCommand3_Click()
{
    Form1->MMControl1.Command(u"close"_s);
    Form1->MMControl1.Command(u"play"_s);
}

void SSCommand1_Click()
{
    Form1->SetEnabled(true);
    Form1->pnlSound.Hide();
}

} // namespace

void BindSoundPanelButtons()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuSound.Click = mnuSound_Click;
        form.SSCommand2.Each(
            [](int index, Button& button) { button.Click = [index] { SSCommand2_Click(index); }; });
        form.SSCommand3.Click = SSCommand3_Click;
        form.SSCommand1.Click = SSCommand1_Click;
    });
}

} // namespace torvik
