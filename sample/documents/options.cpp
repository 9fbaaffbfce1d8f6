#include "sample/documents/options.h"

#include "sample/documents/model_years.h"

#include <array>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

using enum OptionGroup;

constexpr std::array allOptions = {
    Option{Drive, "Three-speed automatic, “Glide-Matic”", 1967, 1979, 178},
    Option{Drive, "Four-speed automatic with overdrive", 1980, 2001, 165},
    Option{Drive, "Four-speed gearbox, floor lever", 1967, 1978, 172},
    Option{Drive, "Five-speed gearbox", 1979, 1998, 98},
    Option{Drive, "Six-speed gearbox (Kestra R)", 2000, 2000, 240},
    Option{Drive, "Limited-slip axle, “Sure-Track”", 1967, 2001, 44},
    Option{Drive, "Long axle ratio 2.79 for the motorway", 1974, 1993, 9},
    Option{Drive, "Power steering", 1967, 1986, 84},
    Option{Drive, "Disc brakes in front, with booster", 1967, 1973, 66},
    Option{Drive, "Anti-lock brakes", 1994, 2001, 78},
    Option{Drive, "Traction control", 1999, 2001, 36},
    Option{Drive, "Handling parcel: firm springs, thick bars", 1967, 2001, 58},
    Option{Drive, "Heavy battery and alternator", 1967, 1990, 8},
    Option{Comfort, "Air conditioner, “Polar-Aire”", 1967, 2001, 352},
    Option{Comfort, "Tilting steering wheel", 1967, 1993, 38},
    Option{Comfort, "Speed control", 1968, 2001, 40},
    Option{Comfort, "Electric windows", 1971, 2001, 62},
    Option{Comfort, "Electric locks", 1979, 2001, 34},
    Option{Comfort, "Folding rear seat", 1967, 1973, 48},
    Option{Comfort, "Tinted glass all round", 1967, 1993, 29},
    Option{Comfort, "Centre console with clock", 1967, 1986, 46},
    Option{Comfort, "Leather seats", 1983, 2001, 120},
    Option{Comfort, "Electric driver’s seat, six ways", 1985, 2001, 64},
    Option{Comfort, "Rear-window demister", 1969, 1998, 31},
    Option{Comfort, "Two cup holders", 1994, 1998, 5},
    Option{Comfort, "Remote key, two buttons", 1996, 2001, 30},
    Option{Looks, "Vinyl roof, black, white or parchment", 1967, 1982, 72},
    Option{Looks, "Racing stripes over bonnet and deck", 1967, 2001, 26},
    Option{Looks, "White-wall tyres", 1967, 1982, 33},
    Option{Looks, "Red-line tyres", 1967, 1970, 36},
    Option{Looks, "Styled steel wheels", 1967, 1978, 84},
    Option{Looks, "Cast alloy wheels", 1977, 2001, 96},
    Option{Looks, "Bonnet scoop, working", 1969, 1973, 76},
    Option{Looks, "Bonnet scoop, for show", 1977, 1986, 21},
    Option{Looks, "Louvres for the rear window", 1969, 1986, 58},
    Option{Looks, "Boot lip spoiler", 1970, 2001, 24},
    Option{Looks, "Two-tone paint", 1979, 1986, 40},
    Option{Looks, "Roof of two glass panels", 1976, 1988, 205},
    Option{Looks, "Sliding glass roof", 1987, 1993, 128},
    Option{Looks, "Fog lamps in the grille", 1967, 1970, 28},
    Option{Looks, "Third brake lamp in the spoiler", 1986, 1998, 12},
    Option{Sound, "AM radio with five buttons", 1967, 1986, 58},
    Option{Sound, "AM/FM radio", 1968, 1986, 118},
    Option{Sound, "Second speaker on the parcel shelf", 1967, 1979, 13},
    Option{Sound, "Eight-track tape player", 1968, 1981, 128},
    Option{Sound, "Cassette radio", 1977, 1998, 82},
    Option{Sound, "Citizens’ band radio", 1976, 1982, 96},
    Option{Sound, "Sound system with six loudspeakers", 1985, 2001, 92},
    Option{Sound, "Compact-disc player", 1989, 2001, 84},
    Option{Sound, "Disc changer for six, in the dashboard", 1999, 2001, 130},
};

} // namespace

std::vector<Option> OptionsOf(int year, OptionGroup group)
{
    std::vector<Option> found;
    for (const Option& option : allOptions) {
        if (option.group == group && option.from <= year && year <= option.to)
            found.push_back(option);
    }
    return found;
}

QString GroupName(OptionGroup group)
{
    switch (group) {
    case Drive:
        return u"Drive, brakes and springs"_s;
    case Comfort:
        return u"Comfort"_s;
    case Looks:
        return u"Appearance"_s;
    case Sound:
        break;
    }
    return u"Sound"_s;
}

int PriceIn(int year, int priceOf1967)
{
    // Half as fast as the car itself: what had been a luxury became cheaper to make.
    const double level = 0.5 + 0.5 * ModelYearOf(year).price / ModelYearOf(1967).price;
    const int exact = static_cast<int>(priceOf1967 * level + 0.5);
    return year < 1975 || exact < 20 ? exact : (exact + 2) / 5 * 5;
}

QString Grouped(int number)
{
    QString digits = QString::number(number);
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3)
        digits.insert(at, u',');
    return digits;
}

QString Dollars(int amount)
{
    return u"$"_s + Grouped(amount);
}

} // namespace torvik::sample
