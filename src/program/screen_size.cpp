#include "program/screen_size.h"

#include "runtime/failure.h"
#include "ui/forms/screen.h"

namespace torvik {

namespace {

double CheckedTwips(std::int32_t pixels)
{
    const std::int64_t twips = std::int64_t{pixels} * 15;
    if (twips > INT32_MAX || twips < INT32_MIN)
        Fail(failure::overflow);
    return static_cast<double>(twips);
}

} // namespace

bool IsScreenSize(std::int32_t width, std::int32_t height)
{
    return Screen.Width() == CheckedTwips(width) && Screen.Height() == CheckedTwips(height) &&
           !Screen.IsScaledByDesktop();
}

} // namespace torvik
