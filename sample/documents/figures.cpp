#include "sample/documents/figures.h"

#include "sample/car/car_shape.h"

#include <array>
#include <cmath>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<ModelYear, 35> modelYears = {{
    // Year, price, coupes, fastbacks, convertibles, weight.
    {1967, 2490, 52140, 18360, 9410, 1265},  {1968, 2580, 61075, 24910, 10230, 1290},
    {1969, 2665, 55320, 33480, 8115, 1330},  {1970, 2760, 41230, 29945, 5870, 1350},
    {1971, 2940, 30110, 24380, 4420, 1455},  {1972, 2905, 27560, 20115, 3905, 1450},
    {1973, 3020, 28940, 19870, 5230, 1475},  {1974, 3180, 60250, 38410, 0, 1240},
    {1975, 3560, 41870, 24960, 0, 1275},     {1976, 3710, 39115, 27640, 0, 1270},
    {1977, 3905, 34520, 26230, 0, 1285},     {1978, 4190, 38705, 31890, 0, 1290},
    {1979, 4580, 48215, 44320, 0, 1205},     {1980, 5120, 45970, 38655, 0, 1210},
    {1981, 5980, 31240, 29870, 0, 1215},     {1982, 6640, 24310, 31125, 0, 1235},
    {1983, 7060, 20855, 27410, 6240, 1260},  {1984, 7290, 22730, 32960, 5835, 1265},
    {1985, 7480, 26140, 35275, 6120, 1270},  {1986, 7840, 31985, 38420, 7310, 1285},
    {1987, 8690, 24110, 36705, 7905, 1335},  {1988, 9140, 26420, 38015, 8720, 1345},
    {1989, 9820, 27905, 41230, 9660, 1365},  {1990, 10440, 21870, 33125, 8815, 1375},
    {1991, 11060, 18345, 27980, 7540, 1385}, {1992, 11490, 15520, 23860, 7985, 1385},
    {1993, 11920, 19410, 25230, 8365, 1390}, {1994, 14280, 46120, 0, 15470, 1430},
    {1995, 15110, 52365, 0, 14210, 1440},    {1996, 15940, 44830, 0, 12875, 1445},
    {1997, 16280, 41270, 0, 11940, 1450},    {1998, 16610, 53015, 0, 13620, 1450},
    {1999, 17420, 49735, 0, 15325, 1465},    {2000, 17890, 58210, 0, 17440, 1470},
    {2001, 18340, 51680, 0, 16915, 1475},
}};

using enum OptionGroup;

constexpr Option allOptions[] = {{Drive, "Three-speed automatic, “Glide-Matic”", 1967, 1979, 178},
                                 {Drive, "Four-speed automatic with overdrive", 1980, 2001, 165},
                                 {Drive, "Four-speed gearbox, floor lever", 1967, 1978, 172},
                                 {Drive, "Five-speed gearbox", 1979, 1998, 98},
                                 {Drive, "Six-speed gearbox (Kestra R)", 2000, 2000, 240},
                                 {Drive, "Limited-slip axle, “Sure-Track”", 1967, 2001, 44},
                                 {Drive, "Long axle ratio 2.79 for the motorway", 1974, 1993, 9},
                                 {Drive, "Power steering", 1967, 1986, 84},
                                 {Drive, "Disc brakes in front, with booster", 1967, 1973, 66},
                                 {Drive, "Anti-lock brakes", 1994, 2001, 78},
                                 {Drive, "Traction control", 1999, 2001, 36},
                                 {Drive, "Handling parcel: firm springs, thick bars", 1967, 2001, 58},
                                 {Drive, "Heavy battery and alternator", 1967, 1990, 8},
                                 {Comfort, "Air conditioner, “Polar-Aire”", 1967, 2001, 352},
                                 {Comfort, "Tilting steering wheel", 1967, 1993, 38},
                                 {Comfort, "Speed control", 1968, 2001, 40},
                                 {Comfort, "Electric windows", 1971, 2001, 62},
                                 {Comfort, "Electric locks", 1979, 2001, 34},
                                 {Comfort, "Folding rear seat", 1967, 1973, 48},
                                 {Comfort, "Tinted glass all round", 1967, 1993, 29},
                                 {Comfort, "Centre console with clock", 1967, 1986, 46},
                                 {Comfort, "Leather seats", 1983, 2001, 120},
                                 {Comfort, "Electric driver’s seat, six ways", 1985, 2001, 64},
                                 {Comfort, "Rear-window demister", 1969, 1998, 31},
                                 {Comfort, "Two cup holders", 1994, 1998, 5},
                                 {Comfort, "Remote key, two buttons", 1996, 2001, 30},
                                 {Looks, "Vinyl roof, black, white or parchment", 1967, 1982, 72},
                                 {Looks, "Racing stripes over bonnet and deck", 1967, 2001, 26},
                                 {Looks, "White-wall tyres", 1967, 1982, 33},
                                 {Looks, "Red-line tyres", 1967, 1970, 36},
                                 {Looks, "Styled steel wheels", 1967, 1978, 84},
                                 {Looks, "Cast alloy wheels", 1977, 2001, 96},
                                 {Looks, "Bonnet scoop, working", 1969, 1973, 76},
                                 {Looks, "Bonnet scoop, for show", 1977, 1986, 21},
                                 {Looks, "Louvres for the rear window", 1969, 1986, 58},
                                 {Looks, "Boot lip spoiler", 1970, 2001, 24},
                                 {Looks, "Two-tone paint", 1979, 1986, 40},
                                 {Looks, "Roof of two glass panels", 1976, 1988, 205},
                                 {Looks, "Sliding glass roof", 1987, 1993, 128},
                                 {Looks, "Fog lamps in the grille", 1967, 1970, 28},
                                 {Looks, "Third brake lamp in the spoiler", 1986, 1998, 12},
                                 {Sound, "AM radio with five buttons", 1967, 1986, 58},
                                 {Sound, "AM/FM radio", 1968, 1986, 118},
                                 {Sound, "Second speaker on the parcel shelf", 1967, 1979, 13},
                                 {Sound, "Eight-track tape player", 1968, 1981, 128},
                                 {Sound, "Cassette radio", 1977, 1998, 82},
                                 {Sound, "Citizens’ band radio", 1976, 1982, 96},
                                 {Sound, "Sound system with six loudspeakers", 1985, 2001, 92},
                                 {Sound, "Compact-disc player", 1989, 2001, 84},
                                 {Sound, "Disc changer for six, in the dashboard", 1999, 2001, 130}};

} // namespace

std::span<const ModelYear> ModelYears()
{
    return modelYears;
}

const ModelYear& ModelYearOf(int year)
{
    if (year < modelYears.front().year || year > modelYears.back().year)
        throw std::out_of_range("There is no such model year.");
    return modelYears.at(static_cast<std::size_t>(year - modelYears.front().year));
}

QString FastbackName(int year)
{
    return year < 1974 ? u"Fastback"_s : u"Hatchback"_s;
}

Measures MeasuresOf(int year)
{
    const CarShape shape = ShapeOfYear(year);
    const auto millimetres = [](double metres) { return static_cast<int>(std::lround(metres * 200)) * 5; };
    double highest = 0;
    double widest = 0;
    for (double s = 0; s < shape.length; s += 0.05) {
        highest = std::max(highest, shape.roof(s));
        widest = std::max(widest, shape.halfWidth(s));
    }
    return {millimetres(shape.length), millimetres(shape.rearAxle - shape.frontAxle), millimetres(2 * widest),
            millimetres(highest)};
}

const std::vector<Engine>& Engines()
{
    static const std::vector<Engine> engines = {
        {'L', "Linden Six", "i6", 3.1, 92.0, 78.0, 8.8, "one-barrel", 116, 4300, 170, 1967, 1970, 0},
        {'P', "Orrin 4.4", "v8", 4.4, 95.0, 77.5, 9.2, "two-barrel", 188, 4500, 262, 1967, 1969, 104},
        {'Q', "Orrin 4.4 Four-Barrel", "v8", 4.4, 95.0, 77.5, 9.8, "four-barrel", 216, 4800, 276, 1967, 1968,
         158},
        {'O', "Orrin 5.0", "v8", 5.0, 101.0, 78.0, 9.4, "two-barrel", 212, 4600, 288, 1969, 1973, 101},
        {'H', "Hessel 5.8", "v8", 5.8, 102.0, 88.7, 10.2, "four-barrel", 282, 5000, 371, 1969, 1973, 186},
        {'K', "Hessel Kestra", "v8", 5.8, 102.0, 88.7, 10.8, "four-barrel, solid lifters", 330, 5400, 378,
         1969, 1971, 420},
        {'R', "Ravensgate 6.7", "v8", 6.7, 105.0, 96.7, 10.4, "four-barrel", 318, 4800, 425, 1967, 1970, 243},
        {'V', "Ravensgate 7.2", "v8", 7.2, 108.5, 97.3, 10.6, "four-barrel", 362, 5200, 446, 1971, 1972, 368},
        {'L', "Linden Six 4.0", "i6", 4.0, 95.0, 94.0, 8.4, "one-barrel", 128, 4000, 205, 1971, 1973, 0},
        {'S', "Sparrow Four", "i4", 2.2, 92.0, 82.7, 8.5, "two-barrel", 86, 4900, 115, 1974, 1986, 0},
        {'M', "Merle 2.7", "v6", 2.7, 92.0, 67.7, 8.2, "two-barrel", 102, 4700, 142, 1974, 1979, 178},
        {'O', "Orrin 5.0", "v8", 5.0, 101.0, 78.0, 8.0, "two-barrel", 134, 3700, 241, 1975, 1979, 212},
        {'B', "Sparrow Turbo", "i4", 2.2, 92.0, 82.7, 8.6, "turbocharger", 138, 5100, 158, 1980, 1982, 390},
        {'P', "Orrin 4.2", "v8", 4.2, 93.0, 77.5, 8.6, "two-barrel", 121, 3500, 211, 1980, 1981, 196},
        {'M', "Merle 3.6", "v6", 3.6, 96.5, 82.0, 8.7, "throttle injection", 116, 4000, 188, 1980, 1986, 150},
        {'O', "Orrin 5.0", "v8", 5.0, 101.0, 78.0, 8.4, "four-barrel", 168, 4300, 247, 1982, 1984, 366},
        {'B', "Sparrow Turbo", "i4", 2.2, 92.0, 82.7, 8.2, "turbocharger, injection", 172, 4700, 205, 1983,
         1986, 440},
        {'O', "Orrin 5.0", "v8", 5.0, 101.0, 78.0, 9.0, "four-barrel", 206, 4500, 268, 1985, 1985, 362},
        {'O', "Orrin 5.0", "v8", 5.0, 101.0, 78.0, 9.0, "injection", 200, 4300, 281, 1986, 1986, 374},
        {'S', "Sparrow Four", "i4", 2.2, 92.0, 82.7, 9.2, "injection", 92, 4500, 128, 1987, 1993, 0},
        {'O', "Orrin 5.0 HO", "v8", 5.0, 101.0, 78.0, 9.4, "injection", 221, 4300, 296, 1987, 1995, 420},
        {'K', "Kestra 5.0", "v8", 5.0, 101.0, 78.0, 9.4, "injection, large ports", 238, 4900, 292, 1993, 1995,
         890},
        {'M', "Merle 3.6", "v6", 3.6, 96.5, 82.0, 9.1, "injection", 147, 4200, 212, 1994, 1998, 0},
        {'N', "Hollin 4.7 OHC", "v8", 4.7, 91.0, 90.3, 9.1, "injection", 218, 4500, 284, 1996, 1997, 436},
        {'N', "Hollin 4.7 OHC", "v8", 4.7, 91.0, 90.3, 9.1, "injection", 225, 4600, 288, 1998, 1998, 436},
        {'K', "Hollin Kestra 4.7", "v8", 4.7, 91.0, 90.3, 9.9, "injection, four valves", 302, 5800, 301, 1996,
         1998, 980},
        {'M', "Merle 3.6 Split-Port", "v6", 3.6, 96.5, 82.0, 9.4, "injection", 188, 5200, 222, 1999, 2001, 0},
        {'N', "Hollin 4.7 OHC", "v8", 4.7, 91.0, 90.3, 9.4, "injection", 258, 5200, 303, 1999, 2001, 448},
        {'K', "Hollin Kestra 4.7", "v8", 4.7, 91.0, 90.3, 9.9, "injection, four valves", 318, 6000, 316, 1999,
         1999, 990},
        {'X', "Hollin Kestra R 5.4", "v8", 5.4, 91.0, 103.7, 9.7, "injection, four valves", 382, 6200, 384,
         2000, 2000, 2140},
        {'K', "Hollin Kestra 4.7", "v8", 4.7, 91.0, 90.3, 10.0, "injection, four valves", 322, 6000, 318,
         2001, 2001, 1010},
    };
    return engines;
}

std::vector<Engine> EnginesOf(int year)
{
    std::vector<Engine> found;
    for (const Engine& engine : Engines()) {
        if (engine.from <= year && year <= engine.to)
            found.insert(engine.extra == 0 ? found.begin() : found.end(), engine);
    }
    return found;
}

QString EngineName(const Engine& engine)
{
    return QString::fromLatin1(engine.name);
}

double SecondsToSixty(const Engine& engine, int weight)
{
    return 0.82 * std::pow(double(weight + 80) / engine.power, 0.88) + 2.6;
}

int TopSpeed(const Engine& engine)
{
    return static_cast<int>(std::lround(20.6 * std::cbrt(engine.power)));
}

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
