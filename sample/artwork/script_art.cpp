#include "sample/artwork/art_plan.h"
#include "sample/artwork/pen_script.h"
#include "sample/car/car_shape.h"
#include "sample/car/paints.h"
#include "sample/geometry/lettering.h"
#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/render/relief.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

const QSize plateSize(240, 72);

/// Lacquer as the ground, with the sky in its upper half.
QImage Lacquer(const QColor& paint)
{
    QImage ground(plateSize, QImage::Format_RGB32);
    QPainter painter(&ground);
    const QColor mild = QColor::fromHsv(std::max(0, paint.hue()), paint.saturation() * 6 / 10,
                                        std::clamp(paint.value() * 6 / 10, 44, 104));
    painter.fillRect(ground.rect(), Linear({0, 0}, {0, plateSize.height() * 1.0},
                                           Shades(mild, {{0, 165}, {0.42, 118}, {0.52, -112}, {1, -135}})));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(255, 255, 255, 70), 1));
    painter.drawRect(QRectF(1.5, 1.5, plateSize.width() - 3, plateSize.height() - 3));
    painter.setPen(QPen(QColor(0, 0, 0, 170), 1));
    painter.drawRect(QRectF(0.5, 0.5, plateSize.width() - 1, plateSize.height() - 1));
    return ground;
}

void AddInk(Relief& relief, const QString& word, const QPointF& at, double xHeight, double spread,
            const Coat& coat)
{
    const Pen pen{.xHeight = xHeight, .broad = 0.22, .fine = 0.13, .spread = spread};
    relief.Add(WriteWord(word, pen).translated(at), coat, {0, 3, 2.6, 2});
}

QPainterPath Bar(const QRectF& box)
{
    return Rounded(box, box.height() / 2);
}

void AddLetters(Relief& relief, const QString& words, const QPointF& middle, double height, const Type& type,
                const Coat& coat)
{
    relief.Add(Centred(Lettering(words, height, type), middle), coat,
               height < 12 ? Rise{0, 0.8, 0.9, 1.2} : Rise{0, height * 0.12, height * 0.11, 2});
}

/// Chrome letters whose faces are filled with a colour.
void AddFilledLetters(Relief& relief, const QString& words, const QPointF& middle, double height,
                      const Type& type, const QColor& fill)
{
    const QPainterPath letters = Centred(Lettering(words, height, type), middle);
    relief.Add(Widened(letters, 1.3), Chrome(), {0, 2.2, 1.8, 2});
    relief.Add(letters, Enamel(fill), {2, -0.6, 1.2, 0});
}

const Type blockType{u"Liberation Sans"_s, true, false, 150, 1.15};
const Type leaningType{u"Liberation Sans"_s, true, true, 108, 1.1};
const Type bookType{u"Liberation Serif"_s, true, true, 104, 1.15};

void FirstScript(Relief& relief, int year)
{
    AddInk(relief, u"Vollandry"_s, {17, year >= 1969 ? 45.0 : 48.0}, 17.5, 1.32, Chrome());
    if (year >= 1969)
        AddLetters(relief, year == 1969 ? u"HESSEL 5.8"_s : u"RAVENSGATE 6.7"_s, {92, 63}, 8, blockType,
                   Chrome());
}

void SecondScript(Relief& relief, int year)
{
    AddLetters(relief, u"Torvik"_s, {118, year == 1971 ? 28.0 : 34.0}, 27, bookType, Chrome());
    relief.Add(Bar(QRectF(34, 51, 172, 3.4)), Chrome(), {0, 2, 1.7, 1});
    if (year == 1971)
        AddLetters(relief, u"RAVENSGATE 7.2"_s, {140, 64}, 7.5, blockType, Chrome());
    if (year == 1973)
        relief.Add(Bar(QRectF(34, 58, 172, 3.4)), Enamel(QColor(196, 30, 34)), {0, 1.6, 1.5, 1});
}

void ThirdScript(Relief& relief, int year)
{
    const Coat coat = year == 1978 ? Gold() : Chrome();
    AddInk(relief, u"Torvik"_s, {26, 42}, 15.5, 1.3, coat);
    if (year >= 1975)
        AddFilledLetters(relief, u"5.0"_s, {196, 32}, 20, leaningType, QColor(178, 22, 26));
    AddLetters(relief, u"VOLLANDRY"_s, {112, 60}, 9, blockType, coat);
}

void FourthScript(Relief& relief, int year)
{
    const bool turbo = year >= 1980 && year <= 1982;
    const QColor fill = year >= 1985 ? QColor(176, 20, 26) : QColor(18, 18, 20);
    AddFilledLetters(relief, u"VOLLANDRY"_s, {120, 27}, 17, {u"Liberation Sans"_s, true, false, 112, 1.12},
                     fill);
    const QString plate = turbo          ? u"TURBO"_s
                          : year == 1979 ? u"TORVIK"_s
                          : year < 1985  ? u"5.0"_s
                          : year == 1985 ? u"5.0 FOUR-BARREL"_s
                          : year == 1986 ? u"5.0 SEQUENTIAL"_s
                                         : u"5.0 HO"_s;
    AddLetters(relief, plate, {120, 54}, 10, {u"Liberation Sans"_s, true, true, 125, 1.1}, Chrome());
}

void FifthScript(Relief& relief, int year)
{
    AddLetters(relief, u"Vollandry"_s, {112, 27}, 22, leaningType, Chrome());
    const QString engine = year < 1996 ? u"5.0 HO"_s : u"4.7 OHC"_s;
    AddFilledLetters(relief, year == 1993 ? u"KESTRA 5.0"_s : engine, {166, 57}, 12, leaningType,
                     year % 2 == 0 ? QColor(172, 20, 28) : QColor(22, 58, 130));
}

void SixthScript(Relief& relief, int year)
{
    relief.Add(Bar(QRectF(20, 53, 200, 3)), Chrome(), {0, 2, 1.5, 1});
    AddInk(relief, u"Vollandry"_s, {20, 42}, 16.5, 1.32, Chrome());
    const QString plate = year == 2000 ? u"KESTRA R"_s : year == 2001 ? u"PORT AVEREL"_s : u"SINCE 1967"_s;
    AddLetters(relief, plate, {78, 64.5}, 7.5, blockType, Chrome());
}

} // namespace

QImage PaintScript(const SmallPicture& script)
{
    Relief relief(plateSize);
    switch (script.marque) {
    case Marque::Harwell:
        AddInk(relief, u"Harwell"_s, {36, 48}, 19, 1.35, Gold());
        return relief.Over(Lacquer(QColor(78, 15, 28)));
    case Marque::Prototype:
        AddInk(relief, u"Torvik"_s, {50, 48}, 18.5, 1.5, Gold());
        return relief.Over(Lacquer(QColor(120, 104, 82)));
    case Marque::Vollandry:
        break;
    }
    constexpr void (*generations[])(Relief&, int) = {FirstScript,  SecondScript, ThirdScript,
                                                     FourthScript, FifthScript,  SixthScript};
    generations[GenerationOfYear(script.year) - 1](relief, script.year);
    const std::vector<Paint>& card = PaintsOfYear(script.year);
    return relief.Over(Lacquer(Cycled(card, script.year * 3).colour));
}

} // namespace torvik::sample
