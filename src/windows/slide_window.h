#pragma once

#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/controls/spin_button.h"
#include "ui/forms/form.h"
#include "ui/forms/timer.h"
#include "ui/media/media_bar.h"

namespace torvik {

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

    Image Image1{*this, QStringLiteral("Image1"), {120, 120, 11760, 7290}};
    Panel pnlPhotoNumber{*this, QStringLiteral("pnlPhotoNumber"), {120, 120, 1560, 330}};
    Panel panYear{*this, QStringLiteral("panYear"), {120, 7500, 3300, 600}, QStringLiteral("panYear")};

    // The first that takes the focus, so that its keys work as soon as the form comes up.
    Button SSCommand1{
        *this, QStringLiteral("SSCommand1"), {3900, 7500, 2100, 240}, QStringLiteral("Beginning")};
    Button SSCommand2{*this, QStringLiteral("SSCommand2"), {6000, 7500, 2100, 240}, QStringLiteral("Middle")};
    MediaBar mmSlide{*this, QStringLiteral("mmSlide"), {3900, 7740, 4200, 360}};
    SpinButton SpinInterval{*this, QStringLiteral("SpinInterval"), {10050, 7500, 330, 600}};
    Panel panInterval{
        *this, QStringLiteral("panInterval"), {10380, 7620, 1500, 360}, QStringLiteral("SSPanel1")};

    Panel PnlCoStar{*this,
                    QStringLiteral("PnlCoStar"),
                    {120, 8220, 4560, 330},
                    QStringLiteral("The Torvik Vollandry   2001")};
    Panel StatusDate{*this,
                     QStringLiteral("StatusDate"),
                     {4680, 8220, 1800, 330},
                     QStringLiteral("StatusDate"),
                     Bevel::Sunken};
    Panel StatusDay{*this,
                    QStringLiteral("StatusDay"),
                    {6480, 8220, 1800, 330},
                    QStringLiteral("StatusDay"),
                    Bevel::Sunken};
    Panel StatusTime{*this,
                     QStringLiteral("StatusTime"),
                     {8280, 8220, 1800, 330},
                     QStringLiteral("StatusTime"),
                     Bevel::Sunken};
    Button cmdExit{*this, QStringLiteral("cmdExit"), {10080, 8220, 1800, 330}, QStringLiteral("Exit")};

    Timer Timer1{*this, QStringLiteral("Timer1"), 750};
    Timer Timer3{*this, QStringLiteral("Timer3"), 10};
};

inline FormHandle<frmSlideControls> frmSlide;

} // namespace torvik
