#include "windows/main_window.h"

namespace torvik {

namespace {

const QString copyTip = QStringLiteral("Click the Right mouse button to copy");

QString CaptionOfYearButton(int index)
{
    if (index == 1)
        return QStringLiteral("1967");
    if (index == 24)
        return QStringLiteral("1990");
    return QStringLiteral("%1").arg((index + 66) % 100, 2, 10, QLatin1Char('0'));
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

FormDesign DesignOfForm1()
{
    FormDesign design;
    design.Name = QStringLiteral("Form1");
    design.Caption = QStringLiteral("The Torvik Vollandry    2001");
    design.ClientWidth = 12060;
    design.ClientHeight = 8385;
    design.Border = FormBorder::Sizable;
    design.ScaleMode = Scale::Pixels;
    design.HasMenu = true;
    return design;
}

/// Nothing opens a file with this dialog, so what it was once drawn with is never seen.
CommonDialogDesign DesignOfCommonDialog()
{
    return {QStringLiteral("cbl"), QStringLiteral("Select COBOL Source File"),
            QStringLiteral("*.cbl|*.cbl|*.cob|*.cob|All (*.*)|*.*")};
}

} // namespace

Form1Controls::Form1Controls()
    : Form(DesignOfForm1()), Form1Menu(static_cast<Form&>(*this)), SaverPanel(static_cast<Form&>(*this)),
      ProgressPanel(static_cast<Form&>(*this)), PrintPanel(static_cast<Form&>(*this)),
      SoundPanel(static_cast<Form&>(*this)),
      cmdSlide(Frame1, QStringLiteral("cmdSlide"), {6360, 360, 2685, 375}, QStringLiteral("SlideShow")),
      cmdExit(Frame1, QStringLiteral("cmdExit"), {9000, 360, 2685, 375}, QStringLiteral("Exit")),
      dlgCommon1(QStringLiteral("dlgCommon1"), DesignOfCommonDialog())
{
    for (int index = 1; index <= yearCount; ++index)
        cmdYR.Add(index, Frame1, PlaceOfYearButton(index), CaptionOfYearButton(index));

    Adopt(MMControl1);
    Adopt(dlgCommon1);
    Adopt(dlgPrint);
    panYear.SetAutoSize(true);
    panPhoto.SetToolTip(QStringLiteral("Double-click to show photo #1"));
    panPhoto.SetTabStop();
    Image4.SetTabStop();
    SpinButton1.SetSpokenAs(QStringLiteral("Next photo"), QStringLiteral("Previous photo"));
    Image4.SetToolTip(QStringLiteral("Click the Right mouse button to copy photo or add to Screen Saver"));
    txtFile.Hide();
    rtbDetails.Hide();
    for (PictureBox* pane : {&picEmblem, &picEmbSide, &picEmbRear, &picScript, &picClipArt}) {
        pane->SetToolTip(copyTip);
        pane->SetTabStop();
        pane->Hide();
    }
}

} // namespace torvik
