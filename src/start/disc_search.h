#pragma once

namespace torvik {

/// Finds the disc: sets DiscRoot, and PhotoRoot to the program folder where photos were copied there, else to
/// DiscRoot. Looks again as often as the user wants; when the user gives up, the program ends. The splash
/// is taken off the screen before the question.
void FindDisc();

} // namespace torvik
