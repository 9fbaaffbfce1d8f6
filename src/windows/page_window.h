#pragma once

#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/picture_box.h"
#include "ui/controls/scroll_bar.h"
#include "ui/controls/scroll_input.h"
#include "ui/forms/form.h"

namespace torvik {

using namespace Qt::StringLiterals;

/// One page of print on the whole screen. picParent clips picChild, which shows the page at full size;
/// hidden, they uncover Image1 with the page as large as the screen.
///
///   +---------------------------+---+
///   | picParent                 | V |
///   |   picChild                | S |
///   |                  (Image1) | c |
///   +---------------------------+---+
///   | HScroll1                  | x |  SSCommand1
///   +---------------------------+---+
struct frmScrollControls : Form {
    frmScrollControls();

    Image Image1{*this, u"Image1"_s, {0, 0, 9300, 7200}, Image::Fit::Stretch};
    PictureBox picParent{*this, u"picParent"_s, {0, 0, 9345, 6945}, Scale::Pixels};
    PictureBox picChild{picParent, u"picChild"_s, {0, 0, 1800, 1200}};
    ScrollBar HScroll1{*this, u"HScroll1"_s, {0, 6945, 9345, 255}};
    ScrollBar VScroll1{*this, u"VScroll1"_s, {9345, 0, 255, 6945}};
    Button SSCommand1{*this, u"SSCommand1"_s, {9345, 6945, 255, 255}};

    ScrollInput Scrolling{*this, HScroll1, VScroll1};
};

inline FormHandle<frmScrollControls> frmScroll;

} // namespace torvik
