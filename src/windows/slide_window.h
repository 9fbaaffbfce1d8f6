#pragma once

#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/controls/spin_button.h"
#include "ui/forms/form.h"
#include "ui/forms/timer.h"
#include "ui/media/media_bar.h"

namespace torvik {

using namespace Qt::StringLiterals;

/// The slide show's window.
///
///   +------------------------------------------------------------------------+
///   | pnlPhotoNumber                                                         |
///   |                                Image1                                  |
///   |                                                                        |
///   | +---------+       SSCommand1 | SSCommand2       SpinInterval           |
///   | | panYear |       mmSlide                                 panInterval  |
///   | PnlCoStar        | StatusDate | StatusDay | StatusTime |       cmdExit |
///   +------------------------------------------------------------------------+
///
/// Where the two jump buttons lie above the bar, they have the height that the layout for 640 by 480 pixels
/// leaves them between its own rows.
struct frmSlideControls : Form {
    frmSlideControls();

    Image Image1{*this, u"Image1"_s, {120, 120, 11760, 7290}};
    Panel pnlPhotoNumber{*this, u"pnlPhotoNumber"_s, {120, 120, 1560, 330}};
    Panel panYear{*this, u"panYear"_s, {120, 7500, 3300, 600}, u"panYear"_s};

    // The first that takes the focus, so that its keys work as soon as the form comes up.
    Button SSCommand1{*this, u"SSCommand1"_s, {3900, 7500, 2100, 240}, u"Beginning"_s};
    Button SSCommand2{*this, u"SSCommand2"_s, {6000, 7500, 2100, 240}, u"Middle"_s};
    MediaBar mmSlide{*this, u"mmSlide"_s, {3900, 7740, 4200, 360}};
    SpinButton SpinInterval{*this, u"SpinInterval"_s, {10050, 7500, 330, 600}};
    Panel panInterval{*this, u"panInterval"_s, {10380, 7620, 1500, 360}, u"SSPanel1"_s};

    Panel PnlCoStar{*this, u"PnlCoStar"_s, {120, 8220, 4560, 330}, u"The Torvik Vollandry   2001"_s};
    Panel StatusDate{*this, u"StatusDate"_s, {4680, 8220, 1800, 330}, u"StatusDate"_s, Bevel::Sunken};
    Panel StatusDay{*this, u"StatusDay"_s, {6480, 8220, 1800, 330}, u"StatusDay"_s, Bevel::Sunken};
    Panel StatusTime{*this, u"StatusTime"_s, {8280, 8220, 1800, 330}, u"StatusTime"_s, Bevel::Sunken};
    Button cmdExit{*this, u"cmdExit"_s, {10080, 8220, 1800, 330}, u"Exit"_s};

    Timer Timer1{*this, u"Timer1"_s, 750};
    Timer Timer3{*this, u"Timer3"_s, 10};
};

inline FormHandle<frmSlideControls> frmSlide;

} // namespace torvik
