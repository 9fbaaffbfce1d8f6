#pragma once

#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/forms/form.h"
#include "ui/forms/timer.h"
#include "ui/media/media_control.h"

namespace torvik {

/// The splash window of the start.
struct Form2Controls : Form {
    Form2Controls();

    Image Image1{*this, QStringLiteral("Image1"), {0, 0, 9000, 6000}};
    Panel SSPanel1{*this,
                   QStringLiteral("SSPanel1"),
                   {0, 6000, 9000, 540},
                   QStringLiteral("One car   -   thirty-five model years   -   1967 to 2001")};
    Image Picture3{SSPanel1, QStringLiteral("Picture3"), {60, 60, 420, 420}};
    Timer Timer1{*this, QStringLiteral("Timer1")};
    MediaControl MMControl1{QStringLiteral("MMControl1")};
};

inline FormHandle<Form2Controls> Form2;

} // namespace torvik
