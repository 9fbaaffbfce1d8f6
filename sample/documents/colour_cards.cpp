#include "sample/documents/colour_cards.h"

#include "sample/car/paints.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace torvik::sample {

namespace {

/// Colours that were on the card only for a while.
struct SpecialColour {
    const char* name;
    unsigned colour;
    bool metallic;
    int from;
    int to;
};

constexpr std::array specialColours = {
    SpecialColour{"Sea Holly Blue", 0x7FA3C4, false, 1967, 1968},
    SpecialColour{"Honeycomb", 0xD9A441, false, 1967, 1967},
    SpecialColour{"Cape Orrin Rose", 0xC98A8A, false, 1968, 1968},
    SpecialColour{"Drake Green", 0x2F6B4F, true, 1968, 1969},
    SpecialColour{"Vermilion Sands", 0xE2542B, false, 1969, 1970},
    SpecialColour{"Plum Crazed", 0x5A2A55, true, 1970, 1970},
    SpecialColour{"Bracken", 0x8C6A35, true, 1971, 1972},
    SpecialColour{"Ice Lilac", 0xB9A8C9, false, 1972, 1972},
    SpecialColour{"Avocado Parade", 0x6E7B33, false, 1973, 1974},
    SpecialColour{"Tobacco Leaf", 0x5B4327, true, 1974, 1975},
    SpecialColour{"Butterscotch", 0xC58B3B, false, 1975, 1976},
    SpecialColour{"Parade Blue", 0x27478C, false, 1976, 1976},
    SpecialColour{"Dove Silver-Blue", 0x8FA0AE, true, 1977, 1978},
    SpecialColour{"Tangerine Glow", 0xE0702A, true, 1978, 1978},
    SpecialColour{"Sahara Two-Tone", 0xB08D57, true, 1979, 1981},
    SpecialColour{"Claret", 0x5A1420, true, 1980, 1983},
    SpecialColour{"Glacier Mint", 0xA9C4B4, true, 1982, 1982},
    SpecialColour{"Midsummer Yellow", 0xE7CF4A, false, 1983, 1984},
    SpecialColour{"Regatta Blue", 0x3A6EA5, true, 1984, 1986},
    SpecialColour{"Smoke Quartz", 0x7A7068, true, 1985, 1987},
    SpecialColour{"Scarlet Pimpernel", 0xC41E24, false, 1987, 1988},
    SpecialColour{"Twilight Indigo", 0x232A55, true, 1988, 1990},
    SpecialColour{"Jonquil", 0xF0D534, false, 1990, 1990},
    SpecialColour{"Wild Strawberry", 0xA8244E, true, 1991, 1993},
    SpecialColour{"Reef Green", 0x1F7F74, true, 1992, 1993},
    SpecialColour{"Rio Ember", 0xC2271E, true, 1994, 1996},
    SpecialColour{"Opal Frost", 0xD7DAD6, true, 1995, 1995},
    SpecialColour{"Mystic Heron", 0x4C5E66, true, 1996, 1996},
    SpecialColour{"Autumn Copper", 0x8E4A21, true, 1997, 1998},
    SpecialColour{"Chrome Orchid", 0x7D6A8C, true, 1998, 1998},
    SpecialColour{"Tropic Lime", 0x8CB82B, true, 1999, 1999},
    SpecialColour{"Sunburst Gold", 0xC9A227, true, 2000, 2000},
    SpecialColour{"Harvest Red", 0x7C1A1A, true, 2001, 2001},
    SpecialColour{"Mineral Grey", 0x55585C, true, 2001, 2001},
};

constexpr std::array seatTrims = {
    SeatTrim{"Black", "ribbed vinyl", 0x1A1A1C, 1967, 1978},
    SeatTrim{"Parchment", "ribbed vinyl", 0xD8CDB0, 1967, 1971},
    SeatTrim{"Saddle", "vinyl with stitched centre", 0x8A5A2E, 1967, 1976},
    SeatTrim{"Lagoon", "vinyl", 0x3F7F84, 1967, 1969},
    SeatTrim{"Oxblood", "vinyl", 0x5E1C1C, 1968, 1974},
    SeatTrim{"Avocado", "knitted vinyl", 0x68713A, 1971, 1975},
    SeatTrim{"Tartan Blue", "cloth", 0x2E4272, 1974, 1978},
    SeatTrim{"Camel", "cord velour", 0xA07C4C, 1977, 1984},
    SeatTrim{"Charcoal", "cloth", 0x3A3B3E, 1979, 2001},
    SeatTrim{"Canyon Red", "velour", 0x7A2A2C, 1979, 1990},
    SeatTrim{"Academy Blue", "cloth", 0x34435F, 1983, 1993},
    SeatTrim{"Sand", "leather", 0xC0A982, 1985, 1998},
    SeatTrim{"Opal Grey", "cloth or leather", 0x9A9DA0, 1990, 1998},
    SeatTrim{"Black", "perforated leather", 0x1A1A1C, 1994, 2001},
    SeatTrim{"Parchment", "leather", 0xD8CDB0, 1999, 2001},
};

QString NameOf(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace

std::vector<CardColour> ColourCard(int year)
{
    std::vector<CardColour> card;
    for (const Paint& paint : PaintsOfYear(year))
        card.push_back({paint.name, paint.colour, paint.metallic > 0.15, {}, 0, false});
    for (const SpecialColour& special : specialColours) {
        if (special.from <= year && year <= special.to)
            card.push_back(
                {NameOf(special.name), QColor(QRgb(special.colour)), special.metallic, {}, 0, true});
    }
    double sum = 0;
    for (std::size_t i = 0; i < card.size(); ++i) {
        CardColour& colour = card[i];
        // Letter of the colour's family and a figure that moves on with the years, as on the real plates.
        colour.code = QString(QLatin1Char(static_cast<char>(
                          'A' + (colour.name.size() * 7 + colour.name[0].unicode()) % 23))) +
                      QString::number((year + static_cast<int>(i) * 3) % 9 + 1);
        const int taste = (year * 31 + static_cast<int>(i) * 47 + colour.colour.red()) % 23;
        colour.share = (colour.extra ? 3 : 7) + taste;
        sum += colour.share;
    }
    double left = 100;
    for (std::size_t i = 0; i + 1 < card.size(); ++i) {
        card[i].share = std::round(card[i].share / sum * 1000) / 10;
        left -= card[i].share;
    }
    card.back().share = std::round(left * 10) / 10;
    return card;
}

std::vector<SeatTrim> SeatTrims(int year)
{
    std::vector<SeatTrim> found;
    std::copy_if(seatTrims.begin(), seatTrims.end(), std::back_inserter(found),
                 [year](const SeatTrim& trim) { return trim.from <= year && year <= trim.to; });
    return found;
}

} // namespace torvik::sample
