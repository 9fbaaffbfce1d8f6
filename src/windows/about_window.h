#pragma once

#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/forms/form.h"

namespace torvik {

/// The about box: title and edition on a plate, the maker's lines and notice, and the way to the web site.
///
///   +--------------------------------------------+
///   | panAbout                                   |
///   |  Picture2    The                           |
///   |              Torvik Vollandry    2001      |
///   |                                  2001.03   |
///   +--------------------------------------------+
///   | Image1  | panQuillon                       |
///   +--------------------------------------------+
///   | SSPanel2                                   |
///   +--------------------------------------------+
///   | SSCommand2                  SSCommand1     |
///   +--------------------------------------------+
struct frmAboutControls : Form {
    frmAboutControls();

    Button SSCommand1{*this, QStringLiteral("SSCommand1"), {4680, 4560, 1440, 390}, QStringLiteral("OK")};
    Button SSCommand2{*this, QStringLiteral("SSCommand2"), {120, 4560, 4440, 390}};

    Panel panAbout{*this, QStringLiteral("panAbout"), {120, 120, 6000, 1800}, {}, Bevel::Sunken};
    Image Picture2{panAbout, QStringLiteral("Picture2"), {120, 150, 1500, 1500}};
    Panel SSPanel5{
        panAbout, QStringLiteral("SSPanel5"), {1740, 150, 4110, 360}, QStringLiteral("The"), Bevel::None};
    Panel SSPanel1{panAbout,
                   QStringLiteral("SSPanel1"),
                   {1740, 510, 4110, 540},
                   QStringLiteral("Torvik Vollandry   "),
                   Bevel::None};
    Panel SSPanel4{
        panAbout, QStringLiteral("SSPanel4"), {1740, 1080, 2000, 540}, QStringLiteral("2001"), Bevel::None};
    Panel SSPanel6{panAbout, QStringLiteral("SSPanel6"), {4590, 1230, 1260, 330}, QStringLiteral("2001.03")};

    Image Image1{*this, QStringLiteral("Image1"), {120, 2070, 1440, 1200}};
    Panel panQuillon{*this, QStringLiteral("panQuillon"), {1680, 2070, 4440, 1200}};
    Panel SSPanel2{*this, QStringLiteral("SSPanel2"), {120, 3420, 6000, 990}, {}, Bevel::Sunken};
};

inline FormHandle<frmAboutControls> frmAbout;

} // namespace torvik
