#include "slides/small_screen_layout.h"

#include "ui/forms/screen.h"
#include "windows/slide_window.h"

namespace torvik {

namespace {

constexpr double rowTop = 5900; // twips, like all that follows
constexpr double stripTop = 6500;

void PlaceRightOf(Control& control, const Control& neighbour)
{
    control.SetLeft(neighbour.Left() + neighbour.Width());
}

void LayOutStrip(frmSlideControls& form)
{
    for (Control* control : std::initializer_list<Control*>{&form.PnlCoStar, &form.StatusDate,
                                                            &form.StatusTime, &form.StatusDay, &form.cmdExit})
        control->SetTop(stripTop);
    form.PnlCoStar.SetWidth(3500);
    for (Panel* panel : {&form.StatusDate, &form.StatusDay, &form.StatusTime})
        panel->SetWidth(1500);
    form.cmdExit.SetWidth(1400);
    PlaceRightOf(form.StatusDate, form.PnlCoStar);
    PlaceRightOf(form.StatusDay, form.StatusDate);
    PlaceRightOf(form.StatusTime, form.StatusDay);
    PlaceRightOf(form.cmdExit, form.StatusTime);
}

/// The jump buttons side by side, the bar below them.
void LayOutBar(frmSlideControls& form)
{
    form.SSCommand1.SetWidth(1377);
    form.SSCommand2.SetWidth(1377);
    form.SSCommand1.SetLeft(form.SSCommand1.Left() - 400);
    form.mmSlide.SetLeft(form.SSCommand1.Left());
    PlaceRightOf(form.SSCommand2, form.SSCommand1);
    form.mmSlide.SetWidth(2736);
}

void LayOutDelay(frmSlideControls& form)
{
    form.panInterval.SetTop(rowTop);
    form.panInterval.SetLeft(Screen.Width() - form.panInterval.Width() - 140);
    form.SpinInterval.SetTop(rowTop);
    form.SpinInterval.SetLeft(form.panInterval.Left() - form.SpinInterval.Width());
    form.SpinInterval.SetHeight(form.SpinInterval.Height() * 0.6);
}

} // namespace

void LayOutForSmallScreen()
{
    frmSlideControls& form = *frmSlide;
    form.Image1.SetWidth(form.Image1.Width() * 0.795);
    form.Image1.SetHeight(form.Image1.Height() * 0.78);
    form.panYear.SetTop(rowTop);
    form.mmSlide.SetTop(6140);
    form.SSCommand1.SetTop(rowTop);
    form.SSCommand2.SetTop(rowTop);
    LayOutStrip(form);
    LayOutBar(form);
    LayOutDelay(form);
}

} // namespace torvik
