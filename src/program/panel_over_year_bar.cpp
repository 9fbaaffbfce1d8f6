#include "program/panel_over_year_bar.h"

#include "windows/main_window.h"

namespace torvik {

/// The bar's buttons are measured in twips while the panel's place is in pixels.
void CentreOverYearBar(Panel& panel)
{
    const Button& last = Form1->cmdExit;
    const auto rightEdge = static_cast<float>((last.Width() + last.Left()) / twipsPerPixel);
    panel.SetLeft((rightEdge - static_cast<float>(panel.Width())) / 2);
}

} // namespace torvik
