#include "media/bind_media.h"
#include "platform/files/files.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr double twipsToPixels = 15;

/// By the index of SSCommand2. Some labels have always had the sound of another car.
constexpr const char* soundFiles[soundCount] = {
    "backfrng.wav", "car_door.wav", "carhorns.wav", "horns.wav",     "cop-car.wav",   "taxi.wav",
    "sportcar.wav", "18wheelr.wav", "peel-out.wav", "Track2.wav",    "nascar.wav",    "racecar.wav",
    "indy-car.wav", "mcycle.wav",   "batmoble.wav", "62sellark.wav", "63sellark.wav", "selstart.wav",
    "passby.wav",   "selcar.wav",   "qr7start.wav", "motorcyc2.wav", "hot_rod.wav",   "red_lght.wav",
    "porche.wav",   "stealth.wav",  "stuck.wav",    "revnrun.wav",   "goingby.wav"};

/// Puts the panel over the middle of the year bar, whose measures are twips.
void mnuSound_Click()
{
    Form1Controls& form = *Form1;
    form.pnlSound.SetTop(form.Image4.Top());
    form.pnlSound.SetLeft(
        ((form.cmdExit.Left() + form.cmdExit.Width()) / twipsToPixels - form.pnlSound.Width()) / 2);
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
    state.SoundFile = state.DiscRoot + u"\\wav\\"_s;
    if (index < soundCount)
        state.SoundFile += QString::fromLatin1(soundFiles[index]);
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
