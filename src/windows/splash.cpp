#include "windows/splash.h"

#include "ui/forms/screen.h"

namespace torvik {

namespace {

FormDesign DesignOfForm2()
{
    FormDesign design;
    design.Name = QStringLiteral("Form2");
    design.Caption = QStringLiteral("The Torvik Vollandry 2001");
    design.ClientWidth = 9000;
    design.ClientHeight = 6540;
    design.Border = FormBorder::None;
    return design;
}

} // namespace

Form2Controls::Form2Controls() : Form(DesignOfForm2())
{
    SetLeft((Screen.Width() - Width()) / 2);
    SetTop((Screen.Height() - Height()) / 2);
    Adopt(MMControl1);
    SSPanel1.SetCaptionFont(14, true, look::accent);
    Image1.Show(Picture::FromResource(QStringLiteral(":/assets/splash.png")));
    Picture3.Show(Picture::FromResource(QStringLiteral(":/assets/icon.png")));
}

} // namespace torvik
