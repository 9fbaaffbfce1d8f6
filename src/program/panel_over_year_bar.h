#pragma once

namespace torvik {

class Panel;

/// Puts a work panel of Form1 in the middle over the year bar.
void CentreOverYearBar(Panel& panel);

} // namespace torvik
