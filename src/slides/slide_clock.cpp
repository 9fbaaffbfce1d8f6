#include "slides/slide_clock.h"

#include "slides/frm_slide.h"
#include "ui/clock.h"

#include <QLocale>

namespace torvik {

namespace {

/// In the program's own language, whatever the desktop's is.
void Timer3_Tick()
{
    const QDateTime now = Clock::Now();
    const QLocale english = QLocale::c();
    frmSlide->StatusTime.SetCaption(english.toString(now, QStringLiteral("hh:mm:ss ap")));
    frmSlide->StatusDate.SetCaption(english.toString(now, QStringLiteral("MM/dd/yy")));
    frmSlide->StatusDay.SetCaption(english.toString(now, QStringLiteral("dddd")));
}

} // namespace

void BindSlideClock()
{
    frmSlide.Bind([](frmSlideControls& form) { form.Timer3.Tick = Timer3_Tick; });
}

} // namespace torvik
