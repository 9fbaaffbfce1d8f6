#include "documents/page_viewer.h"

#include "documents/bind_documents.h"
#include "runtime/failure.h"
#include "runtime/integer16.h"
#include "runtime/text.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/page_window.h"

#include <array>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void frmScroll_Load()
{
    Form1->SetEnabled(false);
    frmScroll->SetTop(Form1->Top());
    frmScroll->SetLeft(Form1->Left());
    frmScroll->picParent.Hide();
    frmScroll->picChild.Hide();
    frmScroll->picChild.Move(0, 0);
    frmScroll->picChild.Show();
    frmScroll->picParent.Show();
}

/// A length as the scroll bars take it; one that does not fit 16 bits is failure 6.
Integer WholeNumber(double length)
{
    const long rounded = RoundHalfEven(length);
    if (rounded < INT16_MIN || rounded > INT16_MAX)
        Fail(failure::overflow);
    return static_cast<int>(rounded);
}

/// How far one click beside the thumb goes: the more panes the page fills, the less of the way at once.
void SetLargeChange(ScrollBar& bar, double paneLength, double pageLength)
{
    const long pane = RoundHalfEven(paneLength);
    if (pane < 1)
        return; // nothing to be seen of the page
    const long panes = RoundHalfEven(pageLength) / pane;
    bar.SetLargeChange(static_cast<int>(bar.Max() / panes / 6));
}

/// A page too long for a bar's range keeps the range that the bar had; one that fits the pane has none.
void SetRange(ScrollBar& bar, double paneLength, double pageLength)
{
    ResumeNext([&] { bar.SetMax(WholeNumber(pageLength - paneLength)); });
    const bool scrolls = paneLength < pageLength;
    bar.SetEnabled(scrolls);
    if (scrolls)
        ResumeNext([&] { SetLargeChange(bar, paneLength, pageLength); });
}

/// The pane, the bars at its edges, the button in the corner between them. What fails is passed over: a
/// window can be too small for a pane, and before it is on the screen nothing takes the focus.
void frmScroll_Resize()
{
    frmScrollControls& form = *frmScroll;
    ResumeNext([&] {
        form.picParent.Move(0, 0, form.ScaleWidth() - form.VScroll1.Width(),
                            form.ScaleHeight() - form.HScroll1.Height());
    });
    const double width = form.picParent.Width();
    const double height = form.picParent.Height();

    form.HScroll1.Move(0, height);
    form.HScroll1.SetWidth(width);
    SetRange(form.HScroll1, width, form.picChild.Width());

    form.VScroll1.Move(width, 0);
    form.VScroll1.SetHeight(height);
    SetRange(form.VScroll1, height, form.picChild.Height());

    ResumeNext([&] { form.SSCommand1.SetFocus(); });
    form.SSCommand1.Move(width, height, form.VScroll1.Width(), form.HScroll1.Height());
}

void HScroll1_Change()
{
    frmScroll->picChild.SetLeft(-frmScroll->HScroll1.Value());
}

void VScroll1_Change()
{
    frmScroll->picChild.SetTop(-frmScroll->VScroll1.Value());
}

/// What stands on the screen while the page is zoomed in, and covers Image1.
std::array<Control*, 4> FullSizeView()
{
    frmScrollControls& form = *frmScroll;
    return {&form.HScroll1, &form.VScroll1, &form.picParent, &form.picChild};
}

void Image1_Click()
{
    for (Control* control : FullSizeView())
        control->Show();
}

/// In these years advertisements were printed across; all others stand upright.
bool IsLandscape(const QString& title)
{
    static const QStringList years = {u"1979"_s, u"1980"_s, u"1986"_s, u"1987"_s, u"1990"_s,
                                      u"1992"_s, u"1993"_s, u"1994"_s, u"1995"_s, u"1996"_s};
    return years.contains(title);
}

void picChild_Click()
{
    constexpr double portraitRatio = 0.77;
    TurnFullSizeViewOver();
    Image& page = frmScroll->Image1;
    const double screenWidth = Screen.Width() / 15;
    page.SetHeight(Screen.Height() / 15);
    page.SetWidth(IsLandscape(Form1->panYear.Caption()) ? screenWidth : page.Height() * portraitRatio);
    page.SetLeft((screenWidth - page.Width()) / 2);
}

void CloseOnRightButton(int button)
{
    if (button == mouse::right)
        frmScroll.Unload();
}

void SSCommand1_Click()
{
    frmScroll.Unload();
}

void frmScroll_Unload()
{
    Form1->SetEnabled(true);
}

} // namespace

void TurnFullSizeViewOver()
{
    for (Control* control : FullSizeView())
        control->SetVisible(!control->Visible());
}

void BindPageViewer()
{
    frmScroll.Bind([](frmScrollControls& form) {
        form.Load = frmScroll_Load;
        form.Resize = frmScroll_Resize;
        form.Unload = frmScroll_Unload;
        form.HScroll1.Change = HScroll1_Change;
        form.VScroll1.Change = VScroll1_Change;
        form.Image1.Click = Image1_Click;
        form.Image1.MouseDown = CloseOnRightButton;
        form.picChild.Click = picChild_Click;
        form.picChild.MouseDown = CloseOnRightButton;
        form.SSCommand1.Click = SSCommand1_Click;
    });
}

} // namespace torvik
