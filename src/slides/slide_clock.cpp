#include "slides/bind_slides.h"
#include "ui/forms/clock.h"
#include "windows/slide_window.h"

#include <QLocale>

#include <optional>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// In the program's own language, whatever the desktop's is.
void ShowTime(const QDateTime& now)
{
    const QLocale english = QLocale::c();
    frmSlide->StatusTime.SetCaption(english.toString(now, u"hh:mm:ss ap"_s));
    frmSlide->StatusDate.SetCaption(english.toString(now, u"MM/dd/yy"_s));
    frmSlide->StatusDay.SetCaption(english.toString(now, u"dddd"_s));
}

/// The panels know no less than seconds: ninety-nine of a hundred ticks have nothing to write.
class StripClock {
public:
    void Tick()
    {
        const qint64 second = Clock::Second();
        if (second == shown_)
            return;
        shown_ = second;
        ShowTime(Clock::Now());
    }

private:
    std::optional<qint64> shown_;
};

} // namespace

void BindSlideClock()
{
    frmSlide.Bind([](frmSlideControls& form) {
        form.Timer3.Tick = [clock = StripClock()]() mutable { clock.Tick(); };
    });
}

} // namespace torvik
