#include "windows/splash.h"

#include "ui/forms/screen.h"

using namespace Qt::StringLiterals;

namespace torvik {

Form2Controls::Form2Controls()
    : Form({.name = u"Form2"_s,
            .caption = u"The Torvik Vollandry 2001"_s,
            .clientWidth = 9000,
            .clientHeight = 6540,
            .border = FormBorder::None})
{
    SetLeft((Screen.Width() - Width()) / 2);
    SetTop((Screen.Height() - Height()) / 2);
    Adopt(MMControl1);
    SSPanel1.SetCaptionFont(14, true, look::accent);
    Image1.Show(Picture::FromResource(u":/assets/splash.png"_s));
    Picture3.Show(Picture::FromResource(u":/assets/icon.png"_s));
}

} // namespace torvik
