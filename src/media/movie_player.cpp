#include "media/bind_media.h"
#include "media/video_driver_offer.h"
#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "program/catalogue/movies_and_sounds.h"
#include "program/next_year_button.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/movie_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr double pictureHeight = 3255; // twips

void mnuMovies_Click()
{
    const QString copied = ProgramFolder() + movieFolder;
    QString found;
    const int error = ResumeNext([&] { found = FindFile(copied + u"*.avi"_s); });
    state.MovieFolder = found.isEmpty() || error != 0 ? state.DiscRoot + movieFolder : copied;
    frmMovie->ShowModal();
}

void OpenMovie(const QString& path)
{
    frmMovie->PicMovie.SetHeight(pictureHeight);
    MMControl& player = frmMovie->MMControl1;
    player.device.notify = false;
    player.device.wait = true;
    player.device.shareable = false;
    player.Show();
    player.device.Command(u"close"_s);
    player.device.SetDeviceType(u"AVIVideo"_s);
    player.device.SetFileName(path);
    player.device.Command(u"open"_s);
    Screen.SetMousePointer(MousePointer::Default);
}

/// The mouse pointer stays an hourglass.
void ReportMovie()
{
    state.ErrorCode = u"ER045"_s;
    ReportError();
}

/// Asks the disc for the movie, but the code of the year decides whether it is opened.
void ChooseMovie(int index)
{
    Screen.SetMousePointer(MousePointer::Hourglass);
    QString path = state.MovieFolder;
    frmMovie->PicMovie.Show();
    if (index < movieCountOfPlayer) {
        const Movie movie = MovieOf(index);
        path += movie.file;
        frmMovie->SetCaption(movie.windowTitle);
    }
    FindFile(path);
    if (state.YearCode.isEmpty())
        ReportMovie();
    else
        OpenMovie(path);
}

void optMovie_Click(int index)
{
    OnError([index] { ChooseMovie(index); }, ReportMovie);
}

/// The window of the pictures is given after the first movie was opened.
void frmMovie_Load()
{
    frmMovieControls& form = *frmMovie;
    form.SetLeft((Screen.Width() - form.Width()) * 0.5);
    form.SetTop((Screen.Height() - form.Height()) * 0.5);
    Form1->SetEnabled(false);
    form.MMControl1.Hide();
    form.PicMovie.Show();
    form.optMovie(0).SetValue(true);
    state.NextYearButton = 0;
    form.MMControl1.device.SetDisplay(&form.PicMovie);
}

/// The device goes with the form, not only when the last of its handlers is done.
void frmMovie_Unload()
{
    frmMovie->MMControl1.device.Command(u"close"_s);
    Form1->SetEnabled(true);
}

void MMControl1_StopClick()
{
    MediaControl& device = frmMovie->MMControl1.device;
    device.Command(u"stop"_s);
    device.Command(u"prev"_s);
}

void frmMovie_SSCommand1_Click()
{
    frmMovie.Unload();
    Form1->SetEnabled(true);
    FocusNextYearButton();
}

void frmMovie_SSCommand2_Click()
{
    OfferDriver([] {
        frmMovie.Unload();
        frmMovie->ShowModal();
    });
}

} // namespace

void BindMoviePlayer()
{
    Form1.Bind([](Form1Controls& form) { form.mnuMovies.Click = mnuMovies_Click; });
    frmMovie.Bind([](frmMovieControls& form) {
        form.Load = frmMovie_Load;
        form.Unload = frmMovie_Unload;
        form.optMovie.Each(
            [](int index, OptionButton& option) { option.Click = [index] { optMovie_Click(index); }; });
        MMControl& player = form.MMControl1;
        const auto gives = [&player](const char* command) {
            const QString word = QString::fromLatin1(command);
            return [&player, word] { player.device.Command(word); };
        };
        player.ButtonClick(MediaButton::Back) = gives("back");
        player.ButtonClick(MediaButton::Next) = gives("next");
        player.ButtonClick(MediaButton::Play) = gives("play");
        player.ButtonClick(MediaButton::Stop) = MMControl1_StopClick;
        form.SSCommand1.Click = frmMovie_SSCommand1_Click;
        form.SSCommand2.Click = frmMovie_SSCommand2_Click;
    });
}

} // namespace torvik
