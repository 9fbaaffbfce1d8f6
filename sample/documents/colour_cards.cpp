#include "sample/documents/colour_cards.h"

#include "sample/car/paints.h"

#include <algorithm>
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

constexpr SpecialColour specialColours[] = {{"Sea Holly Blue", 0x7FA3C4, false, 1967, 1968},
                                            {"Honeycomb", 0xD9A441, false, 1967, 1967},
                                            {"Cape Orrin Rose", 0xC98A8A, false, 1968, 1968},
                                            {"Drake Green", 0x2F6B4F, true, 1968, 1969},
                                            {"Vermilion Sands", 0xE2542B, false, 1969, 1970},
                                            {"Plum Crazed", 0x5A2A55, true, 1970, 1970},
                                            {"Bracken", 0x8C6A35, true, 1971, 1972},
                                            {"Ice Lilac", 0xB9A8C9, false, 1972, 1972},
                                            {"Avocado Parade", 0x6E7B33, false, 1973, 1974},
                                            {"Tobacco Leaf", 0x5B4327, true, 1974, 1975},
                                            {"Butterscotch", 0xC58B3B, false, 1975, 1976},
                                            {"Parade Blue", 0x27478C, false, 1976, 1976},
                                            {"Dove Silver-Blue", 0x8FA0AE, true, 1977, 1978},
                                            {"Tangerine Glow", 0xE0702A, true, 1978, 1978},
                                            {"Sahara Two-Tone", 0xB08D57, true, 1979, 1981},
                                            {"Claret", 0x5A1420, true, 1980, 1983},
                                            {"Glacier Mint", 0xA9C4B4, true, 1982, 1982},
                                            {"Midsummer Yellow", 0xE7CF4A, false, 1983, 1984},
                                            {"Regatta Blue", 0x3A6EA5, true, 1984, 1986},
                                            {"Smoke Quartz", 0x7A7068, true, 1985, 1987},
                                            {"Scarlet Pimpernel", 0xC41E24, false, 1987, 1988},
                                            {"Twilight Indigo", 0x232A55, true, 1988, 1990},
                                            {"Jonquil", 0xF0D534, false, 1990, 1990},
                                            {"Wild Strawberry", 0xA8244E, true, 1991, 1993},
                                            {"Reef Green", 0x1F7F74, true, 1992, 1993},
                                            {"Rio Ember", 0xC2271E, true, 1994, 1996},
                                            {"Opal Frost", 0xD7DAD6, true, 1995, 1995},
                                            {"Mystic Heron", 0x4C5E66, true, 1996, 1996},
                                            {"Autumn Copper", 0x8E4A21, true, 1997, 1998},
                                            {"Chrome Orchid", 0x7D6A8C, true, 1998, 1998},
                                            {"Tropic Lime", 0x8CB82B, true, 1999, 1999},
                                            {"Sunburst Gold", 0xC9A227, true, 2000, 2000},
                                            {"Harvest Red", 0x7C1A1A, true, 2001, 2001},
                                            {"Mineral Grey", 0x55585C, true, 2001, 2001}};

constexpr SeatTrim seatTrims[] = {{"Black", "ribbed vinyl", 0x1A1A1C, 1967, 1978},
                                  {"Parchment", "ribbed vinyl", 0xD8CDB0, 1967, 1971},
                                  {"Saddle", "vinyl with stitched centre", 0x8A5A2E, 1967, 1976},
                                  {"Lagoon", "vinyl", 0x3F7F84, 1967, 1969},
                                  {"Oxblood", "vinyl", 0x5E1C1C, 1968, 1974},
                                  {"Avocado", "knitted vinyl", 0x68713A, 1971, 1975},
                                  {"Tartan Blue", "cloth", 0x2E4272, 1974, 1978},
                                  {"Camel", "cord velour", 0xA07C4C, 1977, 1984},
                                  {"Charcoal", "cloth", 0x3A3B3E, 1979, 2001},
                                  {"Canyon Red", "velour", 0x7A2A2C, 1979, 1990},
                                  {"Academy Blue", "cloth", 0x34435F, 1983, 1993},
                                  {"Sand", "leather", 0xC0A982, 1985, 1998},
                                  {"Opal Grey", "cloth or leather", 0x9A9DA0, 1990, 1998},
                                  {"Black", "perforated leather", 0x1A1A1C, 1994, 2001},
                                  {"Parchment", "leather", 0xD8CDB0, 1999, 2001}};

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
    std::copy_if(std::begin(seatTrims), std::end(seatTrims), std::back_inserter(found),
                 [year](const SeatTrim& trim) { return trim.from <= year && year <= trim.to; });
    return found;
}

} // namespace torvik::sample
