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

/// The year bar holds this many buttons, 1967 to 2001.
inline constexpr int yearCount = 35;

/// The caption of panYear while nothing has been chosen yet.
inline const QString nothingChosen = QStringLiteral("panYear");

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

    Image Image4{*this, QStringLiteral("Image4"), {120, 360, 11640, 7050}};

    Button cmdDesc{*this, QStringLiteral("cmdDesc"), {120, 0, 1335, 330}, QStringLiteral("Description")};
    Button cmdOptions{*this, QStringLiteral("cmdOptions"), {1440, 0, 1335, 330}, QStringLiteral("Options")};
    Button cmdStats{*this, QStringLiteral("cmdStats"), {2760, 0, 1335, 330}, QStringLiteral("Statistics")};
    Button cmdColors{*this, QStringLiteral("cmdColors"), {4080, 0, 1335, 330}, QStringLiteral("Colors")};
    Button cmdScript{*this, QStringLiteral("cmdScript"), {5280, 0, 1335, 330}, QStringLiteral("Script")};
    Button cmdEmblem{*this, QStringLiteral("cmdEmblem"), {6600, 0, 1335, 330}, QStringLiteral("Emblem")};
    Button cmdClipArt{*this, QStringLiteral("cmdClipArt"), {7920, 0, 1335, 330}, QStringLiteral("ClipArt ")};
    Button cmdAd{*this, QStringLiteral("cmdAd"), {9240, 0, 1455, 330}, QStringLiteral("Advertisement")};
    Button cmdNostalgia{
        *this, QStringLiteral("cmdNostalgia"), {10680, 0, 1215, 330}, QStringLiteral("Nostalgia")};

    SpinButton SpinButton1{*this, QStringLiteral("SpinButton1"), {120, 360, 615, 300}};
    Panel panPhoto{*this, QStringLiteral("panPhoto"), {720, 360, 390, 300}};
    Panel panYear{*this, QStringLiteral("panYear"), {1080, 360, 810, 300}, nothingChosen};
    TextBox txtFile{*this, QStringLiteral("txtFile"), {120, 660, 1770, 315}};
    RichTextBox rtbDetails{*this, QStringLiteral("rtbDetails"), {6000, 840, 4935, 975}};

    PictureBox picEmblem{*this, QStringLiteral("picEmblem"), {10200, 4320, 1455, 615}};
    PictureBox picEmbSide{*this, QStringLiteral("picEmbSide"), {10200, 2160, 1455, 615}};
    PictureBox picEmbRear{*this, QStringLiteral("picEmbRear"), {10200, 3600, 1455, 615}};
    PictureBox picScript{*this, QStringLiteral("picScript"), {10200, 2880, 1455, 615}};
    PictureBox picClipArt{*this, QStringLiteral("picClipArt"), {2280, 720, 7215, 615}};

    Frame Frame1{*this, QStringLiteral("Frame1"), {0, 7560, 12015, 855}};
    ControlArray<Button> cmdYR{QStringLiteral("cmdYR")};
    Button cmdSlide;
    Button cmdExit;

    MediaControl MMControl1{QStringLiteral("MMControl1")};
    CommonDialog dlgCommon1;
    CommonDialog dlgPrint{QStringLiteral("dlgPrint")};
};

inline FormHandle<Form1Controls> Form1;

} // namespace torvik
