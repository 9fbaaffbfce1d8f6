#include "windows/booklet_panel.h"

#include "ui/forms/form.h"

namespace torvik {

namespace {

constexpr int titleSize = 20; // pixels

const char* const withoutYear[] = {" Cover", " Introduction"};
const char* const byYear[] = {" Clip art", " Description", " Details", " Engines", " Options", " Colors"};

ControlArray<CheckBox> MakeBoxes(Panel& panel, Frame& frame)
{
    ControlArray<CheckBox> boxes(QStringLiteral("Check1"));
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
    ControlArray<ListBox> lists(QStringLiteral("List1"));
    lists.Add(0, panel, Twips{3600, 1860, 1560, 3180});
    lists.Add(1, panel, Twips{5400, 1860, 1560, 3180});
    return lists;
}

} // namespace

PrintPanel::PrintPanel(Form& form)
    : pnlPrint(form, QStringLiteral("pnlPrint"), {2400, 900, 7200, 6000}),
      Image3(pnlPrint, QStringLiteral("Image3"), {240, 180, 960, 720}),
      Label3(pnlPrint, QStringLiteral("Label3"), {1380, 300, 5580, 480},
             QStringLiteral("Print Torvik Booklet")),
      Frame2(pnlPrint, QStringLiteral("Frame2"), {240, 1860, 3000, 3180}, QStringLiteral(" By year ")),
      Check1(MakeBoxes(pnlPrint, Frame2)), Label5(pnlPrint, QStringLiteral("Label5"), {3600, 1080, 3360, 300},
                                                  QStringLiteral("Choose print range:")),
      Label4(pnlPrint, QStringLiteral("Label4"), {3600, 1500, 1560, 300}, QStringLiteral("From:")),
      List1(MakeLists(pnlPrint)),
      Label6(pnlPrint, QStringLiteral("Label6"), {5400, 1500, 1560, 300}, QStringLiteral("To:")),
      cmdPrint(pnlPrint, QStringLiteral("cmdPrint"), {240, 5340, 2100, 420}, QStringLiteral("Print")),
      SSCommand7(pnlPrint, QStringLiteral("SSCommand7"), {2550, 5340, 2100, 420}, QStringLiteral("Clear")),
      cmdOK(pnlPrint, QStringLiteral("cmdOK"), {4860, 5340, 2100, 420}, QStringLiteral("Cancel")),
      Picture3(pnlPrint, QStringLiteral("Picture3"), {6600, 180, 360, 360}),
      rtbText(pnlPrint, QStringLiteral("rtbText"), {6600, 600, 360, 360})
{
    List1(0).SetSpokenAs(Label4.Caption());
    List1(1).SetSpokenAs(Label6.Caption());
    Label3.SetCaptionFont(titleSize, true, look::accent);
    Image3.Show(Picture::FromResource(QStringLiteral(":/assets/icon.png")));
    Picture3.Hide();
    rtbText.Hide();
    pnlPrint.Hide();
}

} // namespace torvik
