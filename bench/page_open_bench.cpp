// The advertisement on a page of 12 megapixels, as processor time: from the press of its button until the
// page is painted, against a bare decode of the same file to the same size; and the way down and back over
// the opened page, and out to the view of the whole page, of which none may come near that decode.

#include "bare_decode.h"
#include "browsing.h"
#include "measure.h"
#include "processor_time.h"
#include "run_bench.h"
#include "scene.h"
#include "support/while_waiting.h"
#include "ui/forms/event.h"
#include "ui/forms/form_window.h"
#include "windows/page_window.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QTemporaryDir>

#include <algorithm>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using namespace torvik;

constexpr QSize pageSize{3000, 4000};
constexpr int rounds = 15;
constexpr double openingLimit = 1.2;
constexpr double stepLimit = 0.25; // the longest of a way over the page: no step decodes
constexpr int scrollSteps = 50;    // down, and as many back
constexpr double zoomLimit = 0.35; // a bare decode at the size of the screen is half of one at full size

struct Figures {
    std::vector<double> bare;
    std::vector<double> onThread; ///< of the window
    std::vector<double> inAll;
    std::vector<double> longestStep;
    std::vector<double> zoomedOut;
    int painted = 0; ///< rounds in which the whole page was there, moved and could be zoomed out
};

/// Whether the page has been painted since this was made. The page's pane is not there yet then.
class PageWatch : public QObject {
public:
    PageWatch() { QCoreApplication::instance()->installEventFilter(this); }
    bool Painted() const { return painted_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        painted_ = painted_ || (event->type() == QEvent::Paint && watched->objectName() == u"picChild"_s);
        return false;
    }

private:
    bool painted_ = false;
};

QByteArray Jpeg(const QSize& size)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!bench::Scene(size, 1).save(&buffer, "JPG", 85))
        qFatal("cannot write a page");
    return bytes;
}

/// To the foot of the page and back to its head, each step painted. Gives the milliseconds of the longest
/// step, or nothing when the page did not move as its bar did.
std::optional<double> ScrollOver()
{
    frmScrollControls& form = *frmScroll;
    const int foot = form.VScroll1.Max();
    double longest = 0;
    for (int step = 1; step <= 2 * scrollSteps; ++step) {
        const int down = step <= scrollSteps ? step : 2 * scrollSteps - step;
        const double before = bench::ProcessMilliseconds();
        const int place = foot * down / scrollSteps;
        form.VScroll1.SetValue(place);
        form.Window().repaint();
        longest = std::max(longest, bench::ProcessMilliseconds() - before);
        if (form.picChild.Top() != -place)
            return std::nullopt;
    }
    return foot > 0 ? std::optional(longest) : std::nullopt;
}

/// To the view of the whole page, painted. Gives the milliseconds, or nothing when it is not there.
std::optional<double> ZoomOut()
{
    frmScrollControls& form = *frmScroll;
    const double before = bench::ProcessMilliseconds();
    form.picChild.Click.Fire();
    form.Window().repaint();
    const double taken = bench::ProcessMilliseconds() - before;
    const auto& whole = static_cast<const QLabel&>(form.Image1.Widget());
    const bool isThere = !form.picChild.Visible() && whole.pixmap(Qt::ReturnByValue).size() == whole.size();
    return isThere ? std::optional(taken) : std::nullopt;
}

/// What the user does: the button, a look, the way over the page, and the right button.
void VisitPage(Figures& figures)
{
    const double thread = bench::ThreadMilliseconds();
    const double all = bench::ProcessMilliseconds();
    const PageWatch watch;
    const auto isPainted = [&] { return watch.Painted(); };
    const WhileWaiting visit(isPainted, [&] {
        figures.onThread.push_back(bench::ThreadMilliseconds() - thread);
        figures.inAll.push_back(bench::ProcessMilliseconds() - all);
        const bool isWhole = frmScroll->picChild.Picture().NaturalSize() == pageSize;
        const auto longestStep = ScrollOver();
        const auto zoomedOut = ZoomOut();
        figures.zoomedOut.push_back(zoomedOut.value_or(0));
        figures.longestStep.push_back(longestStep.value_or(0));
        figures.painted += isWhole && longestStep && zoomedOut ? 1 : 0;
        frmScroll->Image1.MouseDown.Fire(mouse::right);
    });
    Form1->cmdAd.Click.Fire();
    QCoreApplication::processEvents();
}

bool Measure()
{
    const QTemporaryDir disc;
    const QTemporaryDir program;
    const QString page = disc.filePath(u"ads/67brto00.jpg"_s);
    bench::Write(page, Jpeg(pageSize));
    bench::Write(disc.filePath(u"Torviks/67TOR001.JPG"_s), Jpeg({1280, 776}));
    bench::AnswerOk();
    bench::StartBrowsing(disc.path(), program.path());
    Form1->cmdYR(1).Click.Fire();

    Figures warm;
    VisitPage(warm); // the first time is not counted
    Figures figures;
    const bench::BareDecoder decoder;
    for (int round = 0; round < rounds; ++round) {
        const double before = bench::ProcessMilliseconds();
        if (decoder.Decode(page, pageSize).size() != pageSize)
            qFatal("the page is not to be decoded");
        figures.bare.push_back(bench::ProcessMilliseconds() - before);
        VisitPage(figures);
    }
    if (figures.painted != rounds) {
        std::printf("the page was painted, scrolled and zoomed out in %d of %d rounds\n", figures.painted,
                    rounds);
        FormHandleBase::DiscardAll();
        return false;
    }
    bool isOk = bench::ReportPairs("opening a page of 12 megapixels, the window's thread", "ms",
                                   figures.onThread, figures.bare, openingLimit);
    isOk = bench::ReportPairs("opening a page of 12 megapixels, all threads", "ms", figures.inAll,
                              figures.bare, openingLimit) &&
           isOk;
    isOk = bench::ReportPairs("scrolling over it, the longest of 100 steps", "ms", figures.longestStep,
                              figures.bare, stepLimit) &&
           isOk;
    isOk = bench::ReportPairs("zooming out to the whole page", "ms", figures.zoomedOut, figures.bare,
                              zoomLimit) &&
           isOk;
    FormHandleBase::DiscardAll();
    return isOk;
}

} // namespace

int main(int argc, char** argv)
{
    return torvik::bench::RunBench(argc, argv, Measure);
}
