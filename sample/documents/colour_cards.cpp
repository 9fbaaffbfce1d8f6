#include "sample/documents/colour_cards.h"

#include "sample/car/paints.h"
#include "sample/drawings/script.h"

#include <algorithm>
#include <cmath>

namespace torvik::sample {

namespace {

/// Colours that were on the card only for a while.
struct SpecialColour {
    QString name;
    QColor colour;
    bool metallic;
    int from;
    int to;
};

/// The rows of a table of drawings/colours.txt, each made by `make`.
template <typename Row, typename Make>
std::vector<Row> ReadTable(const char* name, const Make& make)
{
    Script tables("colours");
    tables.Run();
    std::vector<Row> rows;
    for (const Value& row : tables.Get(name).Items())
        rows.push_back(make(row));
    return rows;
}

} // namespace

std::vector<CardColour> ColourCard(int year)
{
    std::vector<CardColour> card;
    for (const Paint& paint : PaintsOfYear(year))
        card.push_back({paint.name, paint.colour, paint.metallic > 0.15, {}, 0, false});
    static const std::vector<SpecialColour> specialColours =
        ReadTable<SpecialColour>("special", [](const Value& row) {
            return SpecialColour{row.At(0).Text(), QColor(static_cast<QRgb>(row.At(1).Number())),
                                 row.At(2).Number() != 0, row.At(3).Whole(), row.At(4).Whole()};
        });
    for (const SpecialColour& special : specialColours) {
        if (special.from <= year && year <= special.to)
            card.push_back({special.name, special.colour, special.metallic, {}, 0, true});
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
    static const std::vector<SeatTrim> all = ReadTable<SeatTrim>("seats", [](const Value& row) {
        return SeatTrim{row.At(0).Text(), row.At(1).Text(), static_cast<QRgb>(row.At(2).Number()),
                        row.At(3).Whole(), row.At(4).Whole()};
    });
    std::vector<SeatTrim> found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [year](const SeatTrim& trim) { return trim.from <= year && year <= trim.to; });
    return found;
}

} // namespace torvik::sample
