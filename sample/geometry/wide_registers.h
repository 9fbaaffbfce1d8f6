#pragma once

namespace torvik::sample {

/// Lets go of what Qt has left in the upper halves of the processor's wide registers. To be called after
/// drawing with Qt and before numbers are computed point by point; it changes no value.
///
/// Qt's fills use these registers and leave them as they are. On newer processors each plain floating-point
/// step then waits for them: an exponential took 30 times as long, a whole photo twice as long.
void LetGoOfWideRegisters();

} // namespace torvik::sample
