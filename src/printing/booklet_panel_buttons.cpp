#include "printing/bind_printing.h"
#include "printing/booklet.h"
#include "program/panel_over_year_bar.h"
#include "program/program_state.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int lastBox = 7;

/// Nothing ticked, and no year selected although the lists stand at their beginning.
void ResetPanel()
{
    Form1Controls& form = *Form1;
    for (state.LoopIndex = 0; state.LoopIndex <= lastBox; state.LoopIndex += 1)
        form.Check1(state.LoopIndex).SetValue(false);
    form.cmdPrint.SetEnabled(false);
    form.cmdPrint.SetCaption(u"Print"_s);
    form.cmdOK.SetCaption(u"Cancel"_s);
    form.List1(0).SetListIndex(0);
    form.List1(1).SetListIndex(0);
    for (int entry = 0; entry <= form.List1(1).ListCount() - 1; ++entry) {
        form.List1(0).SetSelected(entry, false);
        form.List1(1).SetSelected(entry, false);
    }
}

/// The button that answers Escape is the copy panel's, not this panel's own; users know it so.
void mnuPrnt_Click()
{
    Form1Controls& form = *Form1;
    form.pnlPrint.SetTop(form.Image4.Top() + 5);
    CentreOverYearBar(form.pnlPrint);
    form.pnlPrint.ZOrder();
    ResetPanel();
    form.pnlPrint.Show();
    form.SetCancelButton(&form.cmdCancel);
    form.cmdOK.ZOrder();
}

/// Print is there while a box is ticked.
void Check1_Click()
{
    Form1->cmdPrint.SetEnabled(false);
    for (int index = 0; index <= lastBox; ++index) {
        if (Form1->Check1(index).Value())
            Form1->cmdPrint.SetEnabled(true);
    }
}

void cmdOK_Click()
{
    Form1->SetEnabled(true);
    Form1->pnlPrint.Hide();
}

} // namespace

void BindBookletPanelButtons()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuPrnt.Click = mnuPrnt_Click;
        form.Check1.Each([](int /*index*/, CheckBox& box) { box.Click = Check1_Click; });
        form.cmdPrint.Click = PrintBooklet;
        form.cmdOK.Click = cmdOK_Click;
        form.SSCommand7.Click = ResetPanel;
    });
}

} // namespace torvik
