#include "sample/photos/photographed_car.h"

#include "sample/car/paints.h"
#include "sample/geometry/noise.h"

#include <array>
#include <map>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// How a special car is dressed; an invalid stripe colour stands for one that depends on the lacquer.
struct Dress {
    QString script;
    Trim::Stripe stripe;
    QColor stripeColour;
    std::vector<Paint> paints;
};

const std::map<Model, Dress>& Dresses()
{
    static const std::map<Model, Dress> dresses = {
        {Model::Harwell,
         {u"Harwell"_s,
          Trim::Stripe::None,
          Qt::white,
          {Named("Burgundy Silk", 0x4E0F1C, 0.5), Named("Harwell Cream", 0xE2D8B6, 0.0)}}},
        {Model::KestraOne,
         {u"Kestra I"_s,
          Trim::Stripe::Hockey,
          QColor(16, 16, 18),
          {Named("Kestra Yellow", 0xE6B40E, 0.0), Named("Marmalade Orange", 0xD8590F, 0.0),
           Named("Grabbing Blue", 0x2565B4, 0.2)}}},
        {Model::KestraThree,
         {u"Kestra III"_s,
          Trim::Stripe::Rocker,
          QColor(200, 150, 50),
          {Named("Stove Black", 0x0D0D10, 0.3)}}},
        {Model::SuperStallion,
         {u"Super Stallion"_s,
          Trim::Stripe::Racing,
          QColor(24, 26, 30),
          {Named("Stallion Silver", 0xA6ABB0, 1.0), Named("Performance Crimson", 0xA00A14, 0.3)}}},
        {Model::Tarrant,
         {u"Tarrant"_s,
          Trim::Stripe::Racing,
          QColor(),
          {Named("Gull White", 0xE9E6DC, 0.0), Named("Wharf Blue", 0x1F4E86, 0.55)}}},
    };
    return dresses;
}

} // namespace

Paint PaintOf(const PlannedPhoto& photo)
{
    if (photo.model == Model::Vollandry) {
        const std::vector<Paint>& card = PaintsOfYear(photo.year);
        return Cycled(card, photo.variant * 5 + photo.year);
    }
    const std::vector<Paint>& paints = Dresses().at(photo.model).paints;
    const int turn = photo.model == Model::KestraOne ? photo.variant / 2 : photo.variant;
    return Cycled(paints, turn);
}

Trim TrimOf(const PlannedPhoto& photo)
{
    Trim trim{.plate = QString::number(photo.year),
              .script = u"Vollandry"_s,
              .lampsLit = photo.place == Place::City};
    const bool dark = PaintOf(photo).colour.lightness() < 90;
    if (photo.model != Model::Vollandry) {
        const Dress& dress = Dresses().at(photo.model);
        trim.script = dress.script;
        trim.stripe = dress.stripe;
        trim.stripeColour = dress.stripeColour;
        if (!trim.stripeColour.isValid())
            trim.stripeColour = dark ? QColor(236, 234, 226) : QColor(24, 60, 140);
        trim.redLine = photo.model == Model::KestraOne || photo.model == Model::Tarrant;
        trim.whiteWalls = photo.model == Model::Harwell;
        trim.vinylRoof = photo.model == Model::Harwell && photo.variant % 2 == 1;
        return trim;
    }
    const int generation = GenerationOfYear(photo.year);
    trim.whiteWalls = generation == 1 && photo.variant % 3 == 0;
    trim.redLine = generation <= 2 && photo.variant % 3 == 1;
    trim.vinylRoof = generation <= 3 && photo.variant % 4 == 2;
    using enum Trim::Stripe;
    constexpr std::array early = {None, Racing, None, Rocker, Hockey};
    constexpr std::array late = {None, None, Rocker, None, Racing};
    trim.stripe = (generation <= 3 ? early : late)[static_cast<std::size_t>(photo.variant) % early.size()];
    trim.stripeColour = dark ? QColor(232, 230, 222) : QColor(18, 18, 20);
    return trim;
}

} // namespace torvik::sample
