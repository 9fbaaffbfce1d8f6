#pragma once

#include <QColor>
#include <QString>

#include <vector>

namespace torvik::sample {

/// A colour that could be ordered in a year.
struct CardColour {
    QString name;
    QColor colour;
    bool metallic = false;
    QString code;       ///< two characters, as on the plate
    double share = 0;   ///< percent of the year's cars
    bool extra = false; ///< at an extra price, or only in spring
};

/// The colour card: the paints of the photos, and the special colours of the year. The shares add up to 100.
std::vector<CardColour> ColourCard(int year);

/// A trim of the seats.
struct SeatTrim {
    QString name;
    QString cloth;
    QRgb colour; ///< 0xRRGGBB
    int from;
    int to;
};
std::vector<SeatTrim> SeatTrims(int year);

} // namespace torvik::sample
