#pragma once

#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/forms/form.h"

namespace torvik {

using namespace Qt::StringLiterals;

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

    Button SSCommand1{*this, u"SSCommand1"_s, {4680, 4560, 1440, 390}, u"OK"_s};
    Button SSCommand2{*this, u"SSCommand2"_s, {120, 4560, 4440, 390}};

    Panel panAbout{*this, u"panAbout"_s, {120, 120, 6000, 1800}, {}, Bevel::Sunken};
    Image Picture2{panAbout, u"Picture2"_s, {120, 150, 1500, 1500}};
    Panel SSPanel5{panAbout, u"SSPanel5"_s, {1740, 150, 4110, 360}, u"The"_s, Bevel::None};
    Panel SSPanel1{panAbout, u"SSPanel1"_s, {1740, 510, 4110, 540}, u"Torvik Vollandry   "_s, Bevel::None};
    Panel SSPanel4{panAbout, u"SSPanel4"_s, {1740, 1080, 2000, 540}, u"2001"_s, Bevel::None};
    Panel SSPanel6{panAbout, u"SSPanel6"_s, {4590, 1230, 1260, 330}, u"2001.03"_s};

    Image Image1{*this, u"Image1"_s, {120, 2070, 1440, 1200}};
    Panel panQuillon{*this, u"panQuillon"_s, {1680, 2070, 4440, 1200}};
    Panel SSPanel2{*this, u"SSPanel2"_s, {120, 3420, 6000, 990}, {}, Bevel::Sunken};
};

inline FormHandle<frmAboutControls> frmAbout;

} // namespace torvik
