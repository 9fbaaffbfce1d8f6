#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString copyTip = u"Click the Right mouse button to copy"_s;

QString CaptionOfYearButton(int index)
{
    if (index == 1)
        return u"1967"_s;
    if (index == 24)
        return u"1990"_s;
    return u"%1"_s.arg((index + yearBeforeFirst) % 100, 2, 10, QLatin1Char('0'));
}

/// Two rows, each led by a button wide enough for four digits.
Twips PlaceOfYearButton(int index)
{
    const bool upper = index < 24;
    const int column = upper ? index - 1 : index - 24;
    const double top = upper ? 0 : 360;
    if (column == 0)
        return {240, top, 840, 375};
    return {1080.0 + (column - 1) * 480, top, 510, 375};
}

/// Nothing opens a file with this dialog, so what it was once drawn with is never seen.
CommonDialogDesign DesignOfCommonDialog()
{
    return {u"cbl"_s, u"Select COBOL Source File"_s, u"*.cbl|*.cbl|*.cob|*.cob|All (*.*)|*.*"_s};
}

} // namespace

Form1Controls::Form1Controls()
    : Form({.name = u"Form1"_s,
            .caption = u"The Torvik Vollandry    2001"_s,
            .clientWidth = 12060,
            .clientHeight = 8385,
            .border = FormBorder::Sizable,
            .scaleMode = Scale::Pixels,
            .hasMenu = true}),
      Form1Menu(static_cast<Form&>(*this)), SaverPanel(static_cast<Form&>(*this)),
      ProgressPanel(static_cast<Form&>(*this)), PrintPanel(static_cast<Form&>(*this)),
      SoundPanel(static_cast<Form&>(*this)),
      cmdSlide(Frame1, u"cmdSlide"_s, {6360, 360, 2685, 375}, u"SlideShow"_s),
      cmdExit(Frame1, u"cmdExit"_s, {9000, 360, 2685, 375}, u"Exit"_s),
      dlgCommon1(u"dlgCommon1"_s, DesignOfCommonDialog())
{
    for (int index = 1; index <= yearCount; ++index)
        cmdYR.Add(index, Frame1, PlaceOfYearButton(index), CaptionOfYearButton(index));

    Adopt(MMControl1);
    Adopt(dlgCommon1);
    Adopt(dlgPrint);
    panYear.SetAutoSize(true);
    panPhoto.SetToolTip(u"Double-click to show photo #1"_s);
    panPhoto.SetTabStop();
    Image4.SetTabStop();
    SpinButton1.SetSpokenAs(u"Next photo"_s, u"Previous photo"_s);
    Image4.SetToolTip(u"Click the Right mouse button to copy photo or add to Screen Saver"_s);
    txtFile.Hide();
    rtbDetails.Hide();
    for (PictureBox* pane : {&picEmblem, &picEmbSide, &picEmbRear, &picScript, &picClipArt}) {
        pane->SetToolTip(copyTip);
        pane->SetTabStop();
        pane->Hide();
    }
}

} // namespace torvik
