#include "slides/bind_slides.h"

namespace torvik {

void BindSlides()
{
    BindOpenSlideShow();
    BindSlideSteps();
    BindSlideTimer();
    BindSlideClock();
    BindSlideKeyboardFocus();
    BindLeaveSlideShow();
}

} // namespace torvik
