// What a disc image costs against a folder of the same files: opening and the search for the first photo
// (held against `isoinfo -l` on the image), look-ups, a photo step, copying, opening a movie and going to a
// place in it; each from an ISO and from a BIN with its CUE sheet.

#include "av/media_reader.h"
#include "browsing.h"
#include "hard_drive/copy_all_files.h"
#include "measure.h"
#include "platform/files/files.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "run_bench.h"
#include "scene.h"
#include "support/discs/image_maker.h"
#include "support/discs/test_movie.h"
#include "ui/forms/clock.h"
#include "ui/forms/event.h"
#include "ui/forms/form_window.h"
#include "ui/media/file_source.h"
#include "ui/pictures/pictures_ahead.h"
#include "windows/main_window.h"
#include "windows/splash.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>
#include <variant>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using namespace torvik;

constexpr int shownPhotos = 6;
constexpr int otherPhotos = 594;
constexpr int documents = 399; // with the movie a thousand files
constexpr int photoSize = 70'000;
constexpr int rounds = 9;
constexpr double longestOpening = 20; // milliseconds, or twice the baseline where that is more
constexpr double lookUpLimit = 1.1;
constexpr double stepLimit = 1.1;
constexpr double copyLimit = 1 / 0.8;
constexpr double movieLimit = 1.2;

constexpr QChar folderLetter = u'E';
struct Image {
    const char* name;
    QChar letter;
};
constexpr Image images[] = {{"ISO", u'F'}, {"BIN/CUE", u'G'}};

void MakeFolderDisc(const QString& folder)
{
    QDir().mkpath(folder + u"/Torviks"_s);
    for (int number = 0; number < shownPhotos; ++number)
        bench::Scene({1280, 776}, number)
            .save(u"%1/Torviks/67TOR00%2.JPG"_s.arg(folder).arg(number), "JPG", 85);
    QByteArray content(photoSize, Qt::Uninitialized);
    quint32 grain = 1;
    for (char& byte : content) {
        grain = grain * 1664525 + 1013904223;
        byte = static_cast<char>(grain >> 24);
    }
    for (int number = 0; number < otherPhotos; ++number)
        bench::Write(u"%1/Torviks/68TOR%2.JPG"_s.arg(folder).arg(number, 3, 10, QLatin1Char('0')), content);
    for (int number = 0; number < documents; ++number)
        bench::Write(u"%1/RichText/68tor%2.rtf"_s.arg(folder).arg(number, 3, 10, QLatin1Char('0')),
                     "{\\rtf1 text}");
    bench::Write(folder + u"/movies/torvik69.avi"_s, TestMovie::Avi());
}

void MakeImages(const QTemporaryDir& place)
{
    const QString iso = place.filePath(u"disc.iso"_s);
    const QStringList options{u"-as"_s, u"mkisofs"_s, u"-quiet"_s, u"-J"_s, u"-o"_s};
    if (QProcess::execute(u"xorriso"_s, options + QStringList{iso, place.filePath(u"disc"_s)}) != 0)
        qFatal("xorriso makes no image");
    QFile file(iso);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("there is no image");
    bench::Write(place.filePath(u"disc.bin"_s), ImageMaker::Raw(file.readAll(), 1, 2352));
    bench::Write(place.filePath(u"disc.cue"_s),
                 "FILE \"disc.bin\" BINARY\nTRACK 01 MODE1/2352\nINDEX 01 00:00:00\n");
}

/// Medians of what is measured on a folder and on an image by turns. The first time is not counted.
bool Compare(const char* name, const Image& image, const char* unit, double limit,
             const std::function<double(QChar letter)>& measure)
{
    std::vector<double> figures;
    std::vector<double> baselines;
    measure(folderLetter);
    measure(image.letter);
    for (int round = 0; round < rounds; ++round) {
        baselines.push_back(measure(folderLetter));
        figures.push_back(measure(image.letter));
    }
    const QByteArray title = QByteArray(name) + ", " + image.name + " against folder";
    return bench::Report(title.constData(), unit, bench::Median(figures), bench::Median(baselines), limit);
}

void Stand(const QTemporaryDir& place)
{
    SetDriveOptions({{folderLetter, place.filePath(u"disc"_s)},
                     {images[0].letter, place.filePath(u"disc.iso"_s)},
                     {images[1].letter, place.filePath(u"disc.cue"_s)}});
}

bool MeasureOpening(const QTemporaryDir& place)
{
    bool isOk = true;
    for (const Image& image : images) {
        std::vector<double> figures;
        std::vector<double> baselines;
        for (int round = 0; round < rounds; ++round) {
            baselines.push_back(bench::Milliseconds([&] {
                QProcess list;
                list.setStandardOutputFile(QProcess::nullDevice());
                list.start(u"isoinfo"_s, {u"-l"_s, u"-i"_s, place.filePath(u"disc.iso"_s)});
                if (!list.waitForFinished() || list.exitCode() != 0)
                    qFatal("isoinfo lists nothing");
            }));
            figures.push_back(bench::Milliseconds([&] {
                Stand(place); // closes the images
                if (FindFile(image.letter + u":\\Torviks\\*.jpg"_s).isEmpty())
                    qFatal("there is no photo");
            }));
        }
        const double baseline = bench::Median(baselines);
        const QByteArray title = QByteArray("opening and first photo of 1,000 files, ") + image.name;
        isOk = bench::Report(title.constData(), "ms", bench::Median(figures), baseline,
                             std::max(2.0, longestOpening / baseline)) &&
               isOk;
    }
    return isOk;
}

double LookUps(QChar letter)
{
    return bench::Milliseconds([letter] {
        for (int number = 0; number < otherPhotos; ++number) {
            if (!FileExists(u"%1:\\TORVIKS\\68tor%2.jpg"_s.arg(letter).arg(number, 3, 10, QLatin1Char('0'))))
                qFatal("a photo is missing");
        }
    });
}

double PhotoStep(QChar letter)
{
    state.PhotoRoot = letter + u":"_s;
    ForgetPicturesAhead(); // a photo that is ready would say nothing of the disc
    return bench::Milliseconds([] {
        QWidget* focused = QApplication::focusWidget();
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Period, Qt::NoModifier, u"."_s);
        QApplication::sendEvent(focused != nullptr ? focused : &Form1->cmdYR(2).Widget(), &press);
        Form1->Window().repaint();
    });
}

double Copy(QChar letter)
{
    state.DiscRoot = letter + u":"_s;
    QDir(ProgramFolder().mid(2).replace(u'\\', u'/') + u"/Torviks"_s).removeRecursively();
    return bench::Milliseconds([] {
        MakeCopyFolder(ProgramFolder() + torviksFolder);
        CopyAllPhotos();
    });
}

double MovieStart(QChar letter)
{
    return bench::Milliseconds([letter] {
        const Place place = PlaceOf(letter + u":\\movies\\torvik69.avi"_s);
        const auto reader = MediaReader::Open(FileSource::Open(place), SoundFormat());
        if (reader == nullptr || std::holds_alternative<MediaReader::End>(reader->Next()))
            qFatal("there is no movie");
    });
}

double MovieSeek(QChar letter)
{
    const Place place = PlaceOf(letter + u":\\movies\\torvik69.avi"_s);
    const auto reader = MediaReader::Open(FileSource::Open(place), SoundFormat());
    return bench::Milliseconds([&] {
        for (qint64 time : {1'500'000, 200'000, 1'000'000, 0, 1'900'000}) {
            reader->Seek(time);
            if (std::holds_alternative<MediaReader::End>(reader->Next()))
                qFatal("the movie has ended");
        }
    });
}

bool Measure()
{
    const QTemporaryDir place;
    const QTemporaryDir program;
    MakeFolderDisc(place.filePath(u"disc"_s));
    MakeImages(place);
    SetProgramFolder(program.path());
    bench::AnswerOk();
    Stand(place);
    bool isOk = MeasureOpening(place);
    Stand(place);
    Clock::StopAt(QDateTime::currentDateTime());
    Form2.LoadForm();
    Clock::Turn(5000);
    QCoreApplication::processEvents();
    for (const Image& image : images) {
        isOk = Compare("594 look-ups in the wrong case", image, "ms", lookUpLimit, LookUps) && isOk;
        isOk = Compare("photo step", image, "ms", stepLimit, PhotoStep) && isOk;
        isOk = Compare("opening a movie", image, "ms", movieLimit, MovieStart) && isOk;
        isOk = Compare("five places in a movie", image, "ms", movieLimit, MovieSeek) && isOk;
    }
    state.CopyingPhotos = true;
    Form1->pnlProgress.Show();
    for (const Image& image : images)
        isOk = Compare("copy of 600 photos", image, "ms", copyLimit, Copy) && isOk;
    FormHandleBase::DiscardAll();
    return isOk;
}

} // namespace

int main(int argc, char** argv)
{
    return torvik::bench::RunBench(argc, argv, Measure);
}
