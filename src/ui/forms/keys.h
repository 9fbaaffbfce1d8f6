#pragma once

class QKeyEvent;

namespace torvik {

/// The key code of a key press as the handlers know it: the upper-case letter or digit, 32 for the space bar,
/// 188 for the comma key, 190 for the period key; 0 for a key that has none. What the comma and the period
/// key give with Shift depends on the layout; FormWindow finds those.
int KeyCodeOf(const QKeyEvent& event);

/// The shift state: 1 for Shift, 2 for Ctrl, 4 for Alt, added up.
int ShiftStateOf(const QKeyEvent& event);

} // namespace torvik
