// The advertisement of a year: processor time from the click until its page of 12 megapixels is painted at
// full size, and that of a scroll step, against the bare decode of the page by the same decoder.

#include "bind_handlers.h"
#include "browsing.h"
#include "measure.h"
#include "scene.h"
#include "ui/forms/form_window.h"
#include "windows/page_window.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 7;
constexpr double openLimit = 1.2;
constexpr double scrollLimit = 0.2;
constexpr QSize pageSize(3000, 4000);

double ProcessorMilliseconds()
{
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

struct Visit {
    double Opening = 0;
    double ScrollStep = 0;
};

Visit OpenPage()
{
    using namespace torvik;
    Visit visit;
    const double before = ProcessorMilliseconds();
    QTimer::singleShot(0, [&] {
        QCoreApplication::processEvents();
        frmScroll->Window().repaint();
        visit.Opening = ProcessorMilliseconds() - before;
        constexpr int steps = 20;
        const double scrolling = ProcessorMilliseconds();
        for (int step = 1; step <= steps; ++step) {
            frmScroll->VScroll1.SetValue(step * 50);
            QCoreApplication::processEvents();
            frmScroll->Window().repaint();
        }
        visit.ScrollStep = (ProcessorMilliseconds() - scrolling) / steps;
        frmScroll.Unload();
    });
    Form1->cmdAd.Click.Call();
    QCoreApplication::processEvents();
    return visit;
}

double BareDecode(const QString& file)
{
    const double before = ProcessorMilliseconds();
    const QImage page(file);
    return page.isNull() ? 0 : ProcessorMilliseconds() - before;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvik;
    const bench::Home home;
    const QTemporaryDir disc;
    const QTemporaryDir program;
    QDir(disc.path()).mkdir(u"Torviks"_s);
    QDir(disc.path()).mkdir(u"ads"_s);
    const QString page = disc.filePath(u"ads/67brto00.jpg"_s);
    if (!bench::Scene({1280, 776}, 1).save(disc.filePath(u"Torviks/67TOR001.JPG"_s)) ||
        !bench::Scene(pageSize, 2).save(page, "JPG", 85))
        return 2;
    const QApplication application(argc, argv);
    BindHandlers();
    bench::StartBrowsing(disc.path(), program.path());

    std::vector<double> openings;
    std::vector<double> steps;
    std::vector<double> decodes;
    for (int round = 0; round < rounds; ++round) {
        decodes.push_back(BareDecode(page));
        const Visit visit = OpenPage();
        openings.push_back(visit.Opening);
        steps.push_back(visit.ScrollStep);
    }
    FormHandleBase::DiscardAll();
    const double bare = bench::Median(decodes);
    const bool opens =
        bench::Report("opening a page of 12 megapixels", "ms", bench::Median(openings), bare, openLimit);
    const bool scrolls = bench::Report("a step of scrolling", "ms", bench::Median(steps), bare, scrollLimit);
    return opens && scrolls && bare > 0 ? 0 : 1;
}
