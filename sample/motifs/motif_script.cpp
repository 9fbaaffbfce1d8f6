#include "sample/motifs/motif_script.h"

#include "sample/car/car_words.h"
#include "sample/car/paints.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/close_ups.h"
#include "sample/photos/photographer.h"
#include "sample/render/painting_words.h"

#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {
View ViewNamed(const QString& name)
{
    const std::pair<QLatin1String, View> views[] = {{"FrontLeft"_L1, View::FrontLeft},
                                                    {"FrontRight"_L1, View::FrontRight},
                                                    {"Side"_L1, View::Side},
                                                    {"RearLeft"_L1, View::RearLeft}};
    for (const auto& [known, view] : views) {
        if (name == known)
            return view;
    }
    throw std::runtime_error("There is no such view: " + name.toStdString());
}

/// A car cut out: its year, the number of its paint on the year's card or a colour to cast it in, the view
/// and the size; then, in a list, its plate, its lettering and the colour of its stripes.
Value CutOut(const Arguments& a)
{
    const int year = a.Whole(0);
    const Paint paint = a.at(1).IsBrush() ? Paint{QString(), a.Colour(1), 1.0}
                                          : PaintsOfYear(year).at(static_cast<std::size_t>(a.Whole(1)));
    const Value::List looks = a.size() > 4 ? a.Items(4) : Value::List();
    Trim trim;
    trim.plate = !looks.empty() ? looks[0].Text() : QString();
    trim.script = looks.size() > 1 ? looks[1].Text() : QString();
    if (looks.size() > 2) {
        trim.stripe = Trim::Stripe::Racing;
        trim.stripeColour = looks[2].Colour();
    }
    return CutOutCar(ShapeOfYear(year), paint, trim, ViewNamed(a.Text(2)),
                     QSize(a.at(3).At(0).Whole(), a.at(3).At(1).Whole()));
}

constexpr double boardSide = 900;

/// How the square board lies on the picture: with its corners at these points.
QTransform Perspective(const Value& corners)
{
    QPolygonF target;
    for (const Value& corner : corners.Items())
        target << corner.Point();
    QTransform lie;
    QTransform::quadToQuad(QPolygonF({{0, 0}, {boardSide, 0}, {boardSide, boardSide}, {0, boardSide}}),
                           target, lie);
    return lie;
}

/// The board of the game seen straight from above.
QImage BoardFace()
{
    QImage board(static_cast<int>(boardSide), static_cast<int>(boardSide),
                 QImage::Format_ARGB32_Premultiplied);
    SmoothPainter painter(&board);
    Script script("board_face");
    TeachPainting(script, painter);
    script.Run();
    return board;
}

} // namespace

QImage PaintMotif(const char* name, const PlannedPhoto& photo)
{
    QImage picture(photo.size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    SmoothPainter painter(&picture);
    Random random(SeedOf(photo));
    Script script(name);
    TeachPainting(script, painter);
    TeachLuck(script, random);
    const std::pair<const char*, double> numbers[] = {
        {"w", photo.size.width()},  {"h", photo.size.height()}, {"seed", SeedOf(photo)},
        {"variant", photo.variant}, {"year", photo.year},       {"generation", GenerationOfYear(photo.year)}};
    for (const auto& [word, number] : numbers)
        script.Set(QString::fromLatin1(word), number);
    script.Set(u"size"_s, QPointF(photo.size.width(), photo.size.height()));
    script.Set(u"topic"_s, photo.prefix);
    script.Set(u"paint"_s, PaintOf(photo).colour);
    script.Teach("cutout", CutOut);
    script.Teach("lacquer", [](const Arguments& a) {
        return PaintsOfYear(a.Whole(0)).at(static_cast<std::size_t>(a.Whole(1))).colour;
    });
    script.Teach("bricks", [&](const Arguments&) { return BrickWall(photo.size, SeedOf(photo)); });
    script.Teach("lacquered", [&](const Arguments&) { return LacquerCloseUp(photo); });
    script.Teach("outside", [&](const Arguments&) { return ThroughWindscreen(photo); });
    script.Teach("boardface", [](const Arguments&) { return BoardFace(); });
    script.Teach("spread", [&painter](const Arguments& a) {
        painter.setTransform(Perspective(a.at(0)));
        painter.drawImage(0, 0, a.Image(1));
        painter.resetTransform();
        return Value();
    });
    script.Teach("spot", [](const Arguments& a) { return Perspective(a.at(0)).map(a.Point(1)); });
    const CarShape study = StudyShape(photo);
    TeachCar(script, study);
    script.Run();
    return picture;
}

} // namespace torvik::sample
