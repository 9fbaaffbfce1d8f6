#include "ui/scale.h"

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr double smallest = 1;
constexpr double largest = 8;

std::optional<double> FactorOf(const QString& scale)
{
    bool isNumber = false;
    const double factor = scale.toDouble(&isNumber);
    if (!isNumber || !(factor >= smallest && factor <= largest))
        return std::nullopt;
    return factor;
}

/// The largest multiple of a step at which a window of 800 by 600 fits.
double Fitting(const QSizeF& workArea, double step)
{
    const double room = std::min(workArea.width() / 800, workArea.height() / 600);
    return std::clamp(std::floor(room / step) * step, smallest, largest);
}

} // namespace

bool IsScale(const QString& scale)
{
    return scale == u"fit"_s || scale == u"auto"_s || FactorOf(scale).has_value();
}

QString ScaleProblem(const QString& scale)
{
    return u"--scale takes a number from 1 to 8, or fit, or auto; not \"%1\"."_s.arg(scale);
}

double ScaleFactor(const QString& scale, double desktopFactor, const QSizeF& workArea)
{
    if (const auto factor = FactorOf(scale))
        return *factor;
    if (scale == u"fit"_s)
        return Fitting(workArea, 0.25);
    return desktopFactor != 1 ? desktopFactor : Fitting(workArea, 1);
}

} // namespace torvik
