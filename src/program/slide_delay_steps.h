#pragma once

#include <QString>

#include <cstdint>

namespace torvik {

class SpinButton;

/// The delay between two photos after a press of the up arrow: by seconds up to five, by five seconds up to
/// 60, then around to one. Milliseconds.
std::int32_t StepDelayUp(std::int32_t delay);
/// The same for the down arrow: one second goes around to 60.
std::int32_t StepDelayDown(std::int32_t delay);

/// Ties the arrows of a spin button to these steps of `state.SlideDelay`; `show` runs after each.
void BindDelaySteps(SpinButton& spin, void (*show)());

/// A delay in milliseconds as the number of its seconds: "5".
QString DelayInSeconds(std::int32_t delay);

} // namespace torvik
