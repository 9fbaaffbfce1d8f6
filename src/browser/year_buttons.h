#pragma once

#include <QString>

namespace torvik {

/// The year of a year button: 1 gives "1967", 35 gives "2001".
QString YearOfButton(int index);

} // namespace torvik
