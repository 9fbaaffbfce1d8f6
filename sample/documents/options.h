#pragma once

#include <QString>

#include <vector>

namespace torvik::sample {

enum class OptionGroup { Drive, Comfort, Looks, Sound };

/// Something that could be ordered, in the years in which it could.
struct Option {
    OptionGroup group;
    const char* name; ///< UTF-8
    int from;
    int to;
    int price; ///< in dollars of 1967
};

/// The options of a group in a year.
std::vector<Option> OptionsOf(int year, OptionGroup group);
QString GroupName(OptionGroup group);
/// The price of something in a year, in whole dollars: it rose with that of the car.
int PriceIn(int year, int priceOf1967);
/// "$ 1,234".
QString Dollars(int amount);
/// "12,345".
QString Grouped(int number);

} // namespace torvik::sample
