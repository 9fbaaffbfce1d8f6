#include "windows/about_window.h"

#include "windows/maker.h"

namespace torvik {

namespace {

FormDesign DesignOfAbout()
{
    FormDesign design;
    design.Name = QStringLiteral("frmAbout");
    design.Caption = QStringLiteral("About The Torvik Vollandry 2001");
    design.ClientWidth = 6240;
    design.ClientHeight = 5070;
    return design;
}

} // namespace

frmAboutControls::frmAboutControls() : Form(DesignOfAbout())
{
    Picture2.Show(Picture::FromResource(QStringLiteral(":/assets/icon.png")));
    Image1.Show(Picture::FromResource(QStringLiteral(":/assets/splash.png")));
    SSPanel5.SetCaptionFont(18, false);
    SSPanel1.SetCaptionFont(30, true, look::accent);
    SSPanel4.SetCaptionFont(30, true, look::accent);
    for (Panel* line : {&SSPanel5, &SSPanel1, &SSPanel4})
        line->SetAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    SSCommand2.SetCaption(maker::webAddress);
    SetCancelButton(&SSCommand1);
}

} // namespace torvik
