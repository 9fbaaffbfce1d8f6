#include "windows/booklet_panel.h"

#include "ui/forms/form.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const char* const withoutYear[] = {" Cover", " Introduction"};
const char* const byYear[] = {" Clip art", " Description", " Details", " Engines", " Options", " Colors"};

ControlArray<CheckBox> MakeBoxes(Panel& panel, Frame& frame)
{
    ControlArray<CheckBox> boxes(u"Check1"_s);
    int index = 0;
    for (const char* caption : withoutYear) {
        boxes.Add(index, panel, Twips{420, 1080.0 + 390 * index, 2700, 330}, QString::fromLatin1(caption));
        ++index;
    }
    for (const char* caption : byYear) {
        boxes.Add(index, frame, Twips{180, 360.0 + 450 * (index - 2), 2640, 330},
                  QString::fromLatin1(caption));
        ++index;
    }
    return boxes;
}

ControlArray<ListBox> MakeLists(Panel& panel)
{
    ControlArray<ListBox> lists(u"List1"_s);
    lists.Add(0, panel, Twips{3600, 1860, 1560, 3180});
    lists.Add(1, panel, Twips{5400, 1860, 1560, 3180});
    return lists;
}

} // namespace

PrintPanel::PrintPanel(Form& form)
    : pnlPrint(form, u"pnlPrint"_s, {2400, 900, 7200, 6000}),
      Image3(pnlPrint, u"Image3"_s, {240, 180, 960, 720}),
      Label3(pnlPrint, u"Label3"_s, {1380, 300, 5580, 480}, u"Print Torvik Booklet"_s),
      Frame2(pnlPrint, u"Frame2"_s, {240, 1860, 3000, 3180}, u" By year "_s),
      Check1(MakeBoxes(pnlPrint, Frame2)),
      Label5(pnlPrint, u"Label5"_s, {3600, 1080, 3360, 300}, u"Choose print range:"_s),
      Label4(pnlPrint, u"Label4"_s, {3600, 1500, 1560, 300}, u"From:"_s), List1(MakeLists(pnlPrint)),
      Label6(pnlPrint, u"Label6"_s, {5400, 1500, 1560, 300}, u"To:"_s),
      cmdPrint(pnlPrint, u"cmdPrint"_s, {240, 5340, 2100, 420}, u"Print"_s),
      SSCommand7(pnlPrint, u"SSCommand7"_s, {2550, 5340, 2100, 420}, u"Clear"_s),
      cmdOK(pnlPrint, u"cmdOK"_s, {4860, 5340, 2100, 420}, u"Cancel"_s),
      Picture3(pnlPrint, u"Picture3"_s, {6600, 180, 360, 360}),
      rtbText(pnlPrint, u"rtbText"_s, {6600, 600, 360, 360})
{
    List1(0).SetSpokenAs(Label4.Caption());
    List1(1).SetSpokenAs(Label6.Caption());
    Label3.SetCaptionFont(look::panelTitleSize, true, look::accent);
    Image3.ShowWhenSeen(Picture::FromResource(u":/assets/icon.png"_s));
    Picture3.Hide();
    rtbText.Hide();
    pnlPrint.Hide();
}

} // namespace torvik
