#pragma once

#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/forms/form.h"
#include "ui/forms/timer.h"
#include "ui/media/media_control.h"

namespace torvik {

using namespace Qt::StringLiterals;

/// The splash window of the start.
struct Form2Controls : Form {
    Form2Controls();

    Image Image1{*this, u"Image1"_s, {0, 0, 9000, 6000}};
    Panel SSPanel1{*this,
                   u"SSPanel1"_s,
                   {0, 6000, 9000, 540},
                   u"One car   -   thirty-five model years   -   1967 to 2001"_s};
    Image Picture3{SSPanel1, u"Picture3"_s, {60, 60, 420, 420}};
    Timer Timer1{*this, u"Timer1"_s};
    MediaControl MMControl1{u"MMControl1"_s};
};

inline FormHandle<Form2Controls> Form2;

} // namespace torvik
