// How soon a press on a sound button answers and how long opening a movie keeps the window from anything
// else, against a bare reader that opens the same file and decodes its first piece.

#include "av/media_reader.h"
#include "browsing.h"
#include "measure.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "run_bench.h"
#include "support/discs/test_movie.h"
#include "ui/media/file_source.h"
#include "windows/main_window.h"
#include "windows/movie_window.h"
#include "windows/splash.h"

#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <variant>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using namespace torvik;

constexpr int rounds = 15;
constexpr double soundLimit = 50;  // milliseconds
constexpr double movieLimit = 100; // milliseconds

double BareOpening(const QString& path)
{
    return bench::Milliseconds([&] {
        const auto reader = MediaReader::Open(FileSource::Open(PlaceOf(DrivePath(path))), SoundFormat());
        if (reader == nullptr || std::holds_alternative<MediaReader::End>(reader->Next()))
            qFatal("there is nothing to read");
    });
}

/// From the click until time runs for the sound.
double PressSound()
{
    MediaControl& device = Form1->MMControl1;
    return bench::Milliseconds([&] {
        Form1->SSCommand2(0).Click.Fire();
        while (device.Position() == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    });
}

/// The longest time in which nothing else could happen, from the choice until the movie's first picture is on
/// show and some more have passed.
double LongestBlock()
{
    MediaControl& device = frmMovie->MMControl1.device;
    double longest = bench::Milliseconds([] { frmMovie->optMovie(1).Click.Fire(); });
    longest = std::max(longest, bench::Milliseconds([&] { device.Command(u"play"_s); }));
    while (device.Position() < 200)
        longest = std::max(longest, bench::Milliseconds([] { QCoreApplication::processEvents(); }));
    return longest;
}

bool Measure()
{
    const QTemporaryDir disc;
    const QTemporaryDir program;
    bench::Write(disc.filePath(u"Torviks/67A.JPG"_s), "no photo");
    const QString sound = disc.filePath(u"wav/backfrng.wav"_s);
    const QString movie = disc.filePath(u"movies/Torvik69.avi"_s);
    bench::Write(sound, TestMovie::Wav());
    bench::Write(movie, TestMovie::Avi());
    SetProgramFolder(program.path());
    SetDriveOptions({{u'E', disc.path()}});
    bench::AnswerOk();
    Form2.LoadForm();
    state.YearCode = u"67"_s;
    state.MovieFolder = u"E:\\movies\\"_s;

    std::vector<double> presses;
    std::vector<double> bareSounds;
    std::vector<double> blocks;
    std::vector<double> bareMovies;
    PressSound(); // the first time is not counted
    for (int round = 0; round < rounds; ++round) {
        bareSounds.push_back(BareOpening(sound));
        presses.push_back(PressSound());
        bareMovies.push_back(BareOpening(movie));
        blocks.push_back(LongestBlock());
    }
    const double bareSound = bench::Median(bareSounds);
    const double bareMovie = bench::Median(bareMovies);
    const bool soundIsOk = bench::Report("sound button, press to playing", "ms", bench::Median(presses),
                                         bareSound, soundLimit / bareSound);
    const bool movieIsOk = bench::Report("opening a movie, longest block of the window", "ms",
                                         bench::Median(blocks), bareMovie, movieLimit / bareMovie);
    FormHandleBase::DiscardAll();
    return soundIsOk && movieIsOk;
}

} // namespace

int main(int argc, char** argv)
{
    return torvik::bench::RunBench(argc, argv, Measure);
}
