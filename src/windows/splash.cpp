#include "windows/splash.h"

#include "ui/forms/screen.h"

using namespace Qt::StringLiterals;

namespace torvik {

Form2Controls::Form2Controls()
    : Form({.Name = u"Form2"_s,
            .Caption = u"The Torvik Vollandry 2001"_s,
            .ClientWidth = 9000,
            .ClientHeight = 6540,
            .Border = FormBorder::None})
{
    SetLeft((Screen.Width() - Width()) / 2);
    SetTop((Screen.Height() - Height()) / 2);
    Adopt(MMControl1);
    SSPanel1.SetCaptionFont(14, true, look::accent);
    Image1.Show(Picture::FromResource(u":/assets/splash.png"_s));
    Picture3.Show(Picture::FromResource(u":/assets/icon.png"_s));
}

} // namespace torvik
