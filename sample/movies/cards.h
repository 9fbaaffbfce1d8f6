#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace torvik::sample {

/// A picture with writing, as movies begin and end with one.
struct Card {
    QString small; ///< the line above
    QString large;
    QString below;
    QColor colour;
};

/// The card; `age` in seconds since it came up lets a light run over it.
QImage DrawCard(const Card& card, double age, QSize size);

/// The picture in the movie window before a movie is open: a strip of film with the car, and a title.
QImage PaintMovieOpening(QSize size);

} // namespace torvik::sample
