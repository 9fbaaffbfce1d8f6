#include "sample/documents/engines.h"

#include <cmath>

namespace torvik::sample {

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

} // namespace torvik::sample
