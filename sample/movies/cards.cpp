#include "sample/movies/cards.h"

#include "sample/movies/stage.h"
#include "sample/titles/title_script.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

QImage DrawCard(const Card& card, double age, QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    PaintTitle(picture, "movie_cards", "writtenCard", [&](Script& script) {
        script.Set(u"small"_s, card.small);
        script.Set(u"large"_s, card.large);
        script.Set(u"isLong"_s, card.large.size() > 12);
        script.Set(u"below"_s, card.below);
        script.Set(u"colour"_s, card.colour);
        script.Set(u"age"_s, age);
    });
    return picture;
}

QImage PaintMovieOpening(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    const Trim trim{.plate = u"1967"_s, .whiteWalls = true};
    const Stage stage(ShapeOfYear(1967), PaintsOfYear(1967)[0], trim, CoastScenery(4));
    PaintTitle(picture, "movie_cards", "movieWindow", [&](Script& script) {
        script.Teach("scene", [&](const Arguments& a) {
            const double i = a.Number(0);
            return stage.Draw({{-4.4 + 2.4 * i, -5.6, 1.25}, {-0.1, 0, 0.66}, 46, 3.0 * i},
                              QSizeF(a.Point(1).x(), a.Point(1).y()).toSize());
        });
    });
    return picture;
}

} // namespace torvik::sample
