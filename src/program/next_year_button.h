#pragma once

namespace torvik {

/// The index of the year button after `button` (0 to 35); from the last one it goes round to the first.
int NextYearButtonAfter(int button);

/// Moves the focus to the year button after the year on show. Failure 5 when that button cannot take it.
void FocusNextYearButton();

} // namespace torvik
