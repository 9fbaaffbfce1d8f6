// What the slide show's clock, which ticks every ten milliseconds, takes of a processor core, against the
// same program with that timer stopped.

#include "bind_handlers.h"
#include "measure.h"
#include "scene.h"
#include "slide_show.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <ctime>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 5;
constexpr int roundLength = 3000; // milliseconds
constexpr double limit = 1.0;     // percent of a core

/// Percent of a core that the program takes while it only waits for events.
double Share()
{
    QEventLoop loop;
    QTimer::singleShot(roundLength, &loop, &QEventLoop::quit);
    const std::clock_t before = std::clock();
    const double elapsed = torvik::bench::Milliseconds([&] { loop.exec(); });
    const double used = 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    return 100.0 * used / elapsed;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvik;
    const bench::Home home;
    const QTemporaryDir disc;
    const QTemporaryDir program;
    QDir(disc.path()).mkdir(u"Torviks"_s);
    if (!bench::Scene({1280, 776}, 1).save(disc.filePath(u"Torviks/67TOR001.JPG"_s)))
        return 2;
    const QApplication application(argc, argv);
    BindHandlers();
    bench::OpenSlideShow(disc.path(), program.path());
    Clock::Run();

    int ticks = 0;
    const auto tick = frmSlide->Timer3.Tick;
    frmSlide->Timer3.Tick = [&] {
        ++ticks;
        tick.Fire();
    };
    std::vector<double> with;
    std::vector<double> without;
    for (int round = 0; round < rounds; ++round) {
        frmSlide->Timer3.SetInterval(0);
        without.push_back(Share());
        frmSlide->Timer3.SetInterval(10);
        with.push_back(Share());
    }
    FormHandleBase::DiscardAll();

    const double idle = bench::Median(without);
    const double cost = bench::Median(with) - idle;
    const bool isOk = cost <= limit && ticks > rounds * roundLength / 10 / 2;
    std::printf("slide show's clock: %.3f %% of a core, idle program %.3f %%, limit %.2f %%, %d ticks, %s\n",
                cost, idle, limit, ticks, isOk ? "ok" : "over");
    return isOk ? 0 : 1;
}
