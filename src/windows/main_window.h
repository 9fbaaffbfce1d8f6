#pragma once

#include "ui/controls/button.h"
#include "ui/controls/frame.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/controls/picture_box.h"
#include "ui/controls/rich_text_box.h"
#include "ui/controls/spin_button.h"
#include "ui/controls/text_box.h"
#include "ui/forms/control_array.h"
#include "ui/forms/form.h"
#include "ui/media/media_control.h"
#include "ui/printer/common_dialog.h"
#include "windows/booklet_panel.h"
#include "windows/copy_panel.h"
#include "windows/main_menu.h"
#include "windows/saver_panel.h"
#include "windows/sound_panel.h"

namespace torvik {

using namespace Qt::StringLiterals;

/// The year bar holds this many buttons, 1967 to 2001.
inline constexpr int yearCount = 35;
inline constexpr int yearBeforeFirst = 66; ///< of the century; button 1 is 1967

/// The caption of panYear while nothing has been chosen yet.
inline const QString nothingChosen = u"panYear"_s;

/// The main window: the photo, what is told about it, the year bar, and four work panels over them.
///
///   +--------------------------------------------------------------------+
///   | cmdDesc cmdOptions cmdStats cmdColors cmdScript ... cmdAd cmdNostalgia |
///   | SpinButton1 panPhoto panYear                        +------------+ |
///   | txtFile                                             | rtbDetails | |
///   |                          Image4                     +------------+ |
///   |                                                                    |
///   | Frame1: cmdYR(1) ... cmdYR(23)                                     |
///   |         cmdYR(24) ... cmdYR(35)        cmdSlide          cmdExit   |
///   +--------------------------------------------------------------------+
struct Form1Controls : Form, Form1Menu, SaverPanel, ProgressPanel, PrintPanel, SoundPanel {
    Form1Controls();

    Image Image4{*this, u"Image4"_s, {120, 360, 11640, 7050}};

    Button cmdDesc{*this, u"cmdDesc"_s, {120, 0, 1335, 330}, u"Description"_s};
    Button cmdOptions{*this, u"cmdOptions"_s, {1440, 0, 1335, 330}, u"Options"_s};
    Button cmdStats{*this, u"cmdStats"_s, {2760, 0, 1335, 330}, u"Statistics"_s};
    Button cmdColors{*this, u"cmdColors"_s, {4080, 0, 1335, 330}, u"Colors"_s};
    Button cmdScript{*this, u"cmdScript"_s, {5280, 0, 1335, 330}, u"Script"_s};
    Button cmdEmblem{*this, u"cmdEmblem"_s, {6600, 0, 1335, 330}, u"Emblem"_s};
    Button cmdClipArt{*this, u"cmdClipArt"_s, {7920, 0, 1335, 330}, u"ClipArt "_s};
    Button cmdAd{*this, u"cmdAd"_s, {9240, 0, 1455, 330}, u"Advertisement"_s};
    Button cmdNostalgia{*this, u"cmdNostalgia"_s, {10680, 0, 1215, 330}, u"Nostalgia"_s};

    SpinButton SpinButton1{*this, u"SpinButton1"_s, {120, 360, 615, 300}};
    Panel panPhoto{*this, u"panPhoto"_s, {720, 360, 390, 300}};
    Panel panYear{*this, u"panYear"_s, {1080, 360, 810, 300}, nothingChosen};
    TextBox txtFile{*this, u"txtFile"_s, {120, 660, 1770, 315}};
    RichTextBox rtbDetails{*this, u"rtbDetails"_s, {6000, 840, 4935, 975}};

    PictureBox picEmblem{*this, u"picEmblem"_s, {10200, 4320, 1455, 615}};
    PictureBox picEmbSide{*this, u"picEmbSide"_s, {10200, 2160, 1455, 615}};
    PictureBox picEmbRear{*this, u"picEmbRear"_s, {10200, 3600, 1455, 615}};
    PictureBox picScript{*this, u"picScript"_s, {10200, 2880, 1455, 615}};
    PictureBox picClipArt{*this, u"picClipArt"_s, {2280, 720, 7215, 615}};

    Frame Frame1{*this, u"Frame1"_s, {0, 7560, 12015, 855}};
    ControlArray<Button> cmdYR{u"cmdYR"_s};
    Button cmdSlide;
    Button cmdExit;

    MediaControl MMControl1{u"MMControl1"_s};
    CommonDialog dlgCommon1;
    CommonDialog dlgPrint{u"dlgPrint"_s};
};

inline FormHandle<Form1Controls> Form1;

} // namespace torvik
