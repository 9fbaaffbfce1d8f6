#include "program/slide_delay_steps.h"

#include "program/program_state.h"
#include "runtime/text.h"
#include "ui/controls/spin_button.h"

namespace torvik {

namespace {

constexpr std::int32_t second = 1000;
constexpr std::int32_t shortest = second;
constexpr std::int32_t longest = 60 * second;
constexpr std::int32_t largeStep = 5 * second;

} // namespace

std::int32_t StepDelayUp(std::int32_t delay)
{
    switch (delay) {
    case 1 * second:
    case 2 * second:
    case 3 * second:
    case 4 * second:
        return delay + second;
    case longest:
        return shortest;
    default:
        return delay + largeStep;
    }
}

std::int32_t StepDelayDown(std::int32_t delay)
{
    switch (delay) {
    case shortest:
        return longest;
    case 2 * second:
    case 3 * second:
    case 4 * second:
    case 5 * second:
        return delay - second;
    default:
        return delay - largeStep;
    }
}

void BindDelaySteps(SpinButton& spin, void (*show)())
{
    const auto stepping = [show](std::int32_t (*step)(std::int32_t delay)) {
        return [show, step] {
            state.SlideDelay = step(state.SlideDelay);
            show();
        };
    };
    spin.SpinUp = stepping(StepDelayUp);
    spin.SpinDown = stepping(StepDelayDown);
}

QString DelayInSeconds(std::int32_t delay)
{
    return NumberText(static_cast<double>(delay) / second);
}

} // namespace torvik
