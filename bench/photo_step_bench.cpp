// A photo step, from the key press to the painted photo, against a bare decode of the same photo at a reduced
// size and one smooth scale to the same rectangle, both as processor time of one thread: onto a photo that
// was not read ahead, onto one that is ready, and with the key held down at 30 presses a second. Then all
// that a step costs, reading ahead included, against a common image viewer that shows the same photos in a
// window of the same size, where one is installed.

#include "bare_decode.h"
#include "browsing.h"
#include "image_viewer.h"
#include "measure.h"
#include "processor_time.h"
#include "processors.h"
#include "run_bench.h"
#include "scene.h"
#include "ui/pictures/pictures_ahead.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int photoCount = 6;
constexpr int rounds = 18;
constexpr double limit = 1.3;
constexpr double readyLimit = 5; // processor milliseconds of the window's thread
constexpr int heldSteps = 90;
constexpr std::chrono::duration<double, std::milli> heldPeriod{1000.0 / 30};
constexpr double mostLag = 2; // photos
constexpr int viewerTurns = 3;
constexpr int viewerLaps = 3; // round all photos
constexpr double mostOfTheViewer = 1;
constexpr qint64 mostHeld = 64LL * 1024 * 1024;

QStringList MakePhotos(const QString& folder, const QSize& size)
{
    QStringList paths;
    QDir().mkpath(folder);
    for (int number = 0; number < photoCount; ++number) {
        paths.append(folder + u"/67TOR00%1.JPG"_s.arg(number));
        if (!torvik::bench::Scene(size, number).save(paths.last(), "JPG", 85))
            return {};
    }
    return paths;
}

void PressPeriod()
{
    QWidget* focused = QApplication::focusWidget();
    if (focused == nullptr)
        focused = &torvik::Form1->cmdYR(2).Widget();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Period, Qt::NoModifier, u"."_s);
    QApplication::sendEvent(focused, &press);
    torvik::Form1->Image4.Widget().repaint(); // and whatever else of the window has changed
}

QString PathOfPhoto(int number)
{
    return u"E:\\Torviks\\67TOR00%1.JPG"_s.arg(number % photoCount);
}

int ShownPhoto()
{
    return torvik::Form1->Image4.Picture().FileName().mid(5, 3).toInt();
}

/// Until what a step reads ahead is ready: the next two photos and the one before. It would take processors
/// and memory from what is measured.
void WaitForPhotosAhead()
{
    const int shown = ShownPhoto();
    for (const int number : {shown + 1, shown + 2, shown + photoCount - 1}) {
        while (!torvik::Form1->Image4.HasReadAhead(PathOfPhoto(number)))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

/// Processor milliseconds of the window's thread for a step onto a photo that is ready.
bool MeasureReady(double bare)
{
    using namespace torvik;
    std::vector<double> figures;
    qint64 held = 0;
    for (int round = 0; round < rounds; ++round) {
        WaitForPhotosAhead();
        held = std::max(held, BytesReadAhead());
        const double before = bench::ThreadMilliseconds();
        PressPeriod();
        figures.push_back(bench::ThreadMilliseconds() - before);
    }
    std::printf("held for it: %.1f MiB at most\n", static_cast<double>(held) / (1024 * 1024));
    return bench::Report("photo step onto a ready photo", "ms", bench::Median(figures), bare,
                         readyLimit / bare) &&
           held <= mostHeld;
}

/// The key held down: what is shown is late by how many photos, and is any left out?
bool MeasureHeld()
{
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    double worst = 0;
    int skipped = 0;
    for (int step = 1; step <= heldSteps; ++step) {
        const auto due = begin + std::chrono::duration_cast<Clock::duration>(heldPeriod * step);
        std::this_thread::sleep_until(due);
        const int before = ShownPhoto();
        PressPeriod();
        skipped += ShownPhoto() == (before + 1) % photoCount ? 0 : 1;
        worst = std::max(worst, (Clock::now() - due) / heldPeriod);
    }
    const bool isOk = skipped == 0 && worst < mostLag;
    std::printf("the key held down for %d photos at 30 a second: %.2f photos late at most, %d skipped, "
                "limit %.0f, %s\n",
                heldSteps, worst, skipped, mostLag, isOk ? "ok" : "over");
    return isOk;
}

/// Processor milliseconds of all threads for one step, what it reads ahead included. Each step waits for
/// that, so that none is left over.
double MillisecondsAStep(int steps)
{
    WaitForPhotosAhead();
    const double before = torvik::bench::ProcessMilliseconds();
    for (int step = 0; step < steps; ++step) {
        PressPeriod();
        WaitForPhotosAhead();
    }
    return (torvik::bench::ProcessMilliseconds() - before) / steps;
}

/// Both in turns, the same photos round and round.
bool MeasureAgainstViewer(const QStringList& photos, const QSize& area)
{
    using namespace torvik;
    const bench::ImageViewer viewer;
    if (!viewer.IsThere()) {
        std::printf("a common image viewer on the same photos: not measured, feh or Xvfb is not there\n");
        return true;
    }
    QStringList laps;
    for (int lap = 0; lap < viewerLaps; ++lap)
        laps += photos;
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int turn = 0; turn < viewerTurns; ++turn) {
        const auto shown = viewer.MillisecondsAPhoto(laps, area);
        if (!shown) {
            std::printf("a common image viewer did not show the photos\n");
            return false;
        }
        theirs.push_back(*shown);
        ours.push_back(MillisecondsAStep(static_cast<int>(laps.size())));
    }
    return bench::ReportPairs("photo step with all that it reads ahead against an image viewer", "ms", ours,
                              theirs, mostOfTheViewer);
}

bool Measure(const char* name, const QSize& size)
{
    using namespace torvik;
    const QTemporaryDir disc;
    const QTemporaryDir program;
    const QStringList photos = MakePhotos(disc.filePath(u"Torviks"_s), size);
    if (photos.isEmpty())
        return false;
    bench::StartBrowsing(disc.path(), program.path());
    const QSize area = Form1->Image4.Widget().size();

    const bench::BareDecoder decoder;
    std::vector<double> figures;
    std::vector<double> baselines;
    PressPeriod(); // the first time is not counted
    bool whole = true;
    for (int round = 0; round < rounds; ++round) {
        WaitForPhotosAhead();
        const QString& photo = photos[(ShownPhoto() + 1) % photoCount];
        const double before = bench::ThreadMilliseconds();
        whole = !decoder.Decode(photo, area).isNull() && whole;
        baselines.push_back(bench::ThreadMilliseconds() - before);
        ForgetPicturesAhead();
        const double between = bench::ThreadMilliseconds();
        PressPeriod();
        figures.push_back(bench::ThreadMilliseconds() - between);
    }
    bool isOk = bench::ReportPairs(name, "ms", figures, baselines, limit) && whole;
    isOk = MeasureReady(bench::Median(baselines)) && isOk;
    isOk = MeasureHeld() && isOk;
    isOk = MeasureAgainstViewer(photos, area) && isOk;
    FormHandleBase::DiscardAll();
    return isOk;
}

} // namespace

int main(int argc, char** argv)
{
    // What is promised is promised for two; the threads that read ahead begin with the first photo.
    torvik::bench::UseProcessors(2);
    return torvik::bench::RunBench(argc, argv, [] {
        const bool small = Measure("photo step, 1280 x 776", {1280, 776});
        const bool large = Measure("photo step, 4000 x 3000", {4000, 3000});
        return small && large;
    });
}
