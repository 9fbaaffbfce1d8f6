#include "sample/car/paints.h"

#include <array>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

Paint Named(const char* name, QRgb colour, double metallic)
{
    return {QString::fromLatin1(name), QColor(colour), metallic};
}

} // namespace

const std::vector<Paint>& PaintsOfYear(int year)
{
    static const std::vector<Paint> sixties = {
        Named("Ember Red", 0xA8141C, 0.0),         Named("Wharf Blue", 0x1F4E86, 0.55),
        Named("Meadow Lime Gold", 0x8A8A3C, 0.6),  Named("Gull White", 0xE9E6DC, 0.0),
        Named("Spruce Green", 0x17402F, 0.5),      Named("Saffron Yellow", 0xE3B21C, 0.0),
        Named("Night Watch Black", 0x0B0B0D, 0.0), Named("Lagoon Aqua", 0x5FA8AC, 0.35)};
    static const std::vector<Paint> seventies = {
        Named("Marmalade Orange", 0xD8590F, 0.0), Named("Bottle Green", 0x1B4A2B, 0.4),
        Named("Grabbing Blue", 0x2565B4, 0.2),    Named("Pewter Frost", 0x9A9C9C, 0.9),
        Named("Mustard Seed", 0xC4942A, 0.0),     Named("Chestnut Glow", 0x6A2E17, 0.7),
        Named("Pale Linen", 0xDCD2B8, 0.0),       Named("Signal Red", 0xB51218, 0.0)};
    static const std::vector<Paint> eighties = {
        Named("Quarry Grey", 0x5A5E64, 0.8),    Named("Poppy Red", 0xB80F1A, 0.0),
        Named("Harbour Blue", 0x1A2F5C, 0.7),   Named("Oxford Chalk", 0xE7E8E6, 0.0),
        Named("Champagne Sand", 0xB49C78, 0.9), Named("Stove Black", 0x0D0D10, 0.3),
        Named("Canyon Copper", 0x8A4A2A, 0.8)};
    static const std::vector<Paint> nineties = {
        Named("Kingfisher Teal", 0x0B6468, 0.75), Named("Calypso Green", 0x0E7A52, 0.5),
        Named("Laser Red", 0xA6101E, 0.5),        Named("Royal Violet", 0x3A2268, 0.7),
        Named("Sterling Silver", 0xA9ADB2, 1.0),  Named("Canary Yellow", 0xE8C312, 0.0),
        Named("Atlantic Blue", 0x143C92, 0.7),    Named("Crystal White", 0xECEDED, 0.0)};
    static const std::vector<Paint> millennium = {
        Named("Electric Teal", 0x0D5F78, 0.8), Named("Performance Crimson", 0xA00A14, 0.3),
        Named("Zinc Yellow", 0xEFC810, 0.0),   Named("True Cobalt", 0x10378A, 0.8),
        Named("Graphite Mist", 0x3C3F44, 0.9), Named("Silver Tide", 0xA6ABB0, 1.0),
        Named("Pine Shadow", 0x123A2A, 0.6)};
    if (year < 1971)
        return sixties;
    if (year < 1979)
        return seventies;
    if (year < 1989)
        return eighties;
    return year < 1999 ? nineties : millennium;
}

Paint PaintOf(const PlannedPhoto& photo)
{
    switch (photo.model) {
    case Model::KestraOne: {
        static const std::array<Paint, 3> paints = {Named("Kestra Yellow", 0xE6B40E, 0.0),
                                                    Named("Marmalade Orange", 0xD8590F, 0.0),
                                                    Named("Grabbing Blue", 0x2565B4, 0.2)};
        return paints[static_cast<std::size_t>(photo.variant / 2) % paints.size()];
    }
    case Model::KestraThree:
        return Named("Stove Black", 0x0D0D10, 0.3);
    case Model::SuperStallion:
        return photo.variant % 2 == 0 ? Named("Stallion Silver", 0xA6ABB0, 1.0)
                                      : Named("Performance Crimson", 0xA00A14, 0.3);
    case Model::Tarrant:
        return photo.variant % 2 == 0 ? Named("Gull White", 0xE9E6DC, 0.0)
                                      : Named("Wharf Blue", 0x1F4E86, 0.55);
    case Model::Harwell:
        return photo.variant % 2 == 0 ? Named("Burgundy Silk", 0x4E0F1C, 0.5)
                                      : Named("Harwell Cream", 0xE2D8B6, 0.0);
    case Model::Vollandry:
        break;
    }
    const std::vector<Paint>& card = PaintsOfYear(photo.year);
    return card[static_cast<std::size_t>(photo.variant * 5 + photo.year) % card.size()];
}

Trim TrimOf(const PlannedPhoto& photo)
{
    Trim trim;
    trim.plate = QString::number(photo.year);
    trim.script = u"Vollandry"_s;
    trim.lampsLit = photo.place == Place::City;
    const bool dark = PaintOf(photo).colour.lightness() < 90;
    const QColor contrast = dark ? QColor(232, 230, 222) : QColor(18, 18, 20);
    switch (photo.model) {
    case Model::KestraOne:
        trim.script = u"Kestra I"_s;
        trim.stripe = Trim::Stripe::Hockey;
        trim.stripeColour = QColor(16, 16, 18);
        trim.redLine = true;
        return trim;
    case Model::KestraThree:
        trim.script = u"Kestra III"_s;
        trim.stripe = Trim::Stripe::Rocker;
        trim.stripeColour = QColor(200, 150, 50);
        return trim;
    case Model::SuperStallion:
        trim.script = u"Super Stallion"_s;
        trim.stripe = Trim::Stripe::Racing;
        trim.stripeColour = QColor(24, 26, 30);
        return trim;
    case Model::Tarrant:
        trim.script = u"Tarrant"_s;
        trim.stripe = Trim::Stripe::Racing;
        trim.stripeColour = dark ? QColor(236, 234, 226) : QColor(24, 60, 140);
        trim.redLine = true;
        return trim;
    case Model::Harwell:
        trim.script = u"Harwell"_s;
        trim.whiteWalls = true;
        trim.vinylRoof = photo.variant % 2 == 1;
        return trim;
    case Model::Vollandry:
        break;
    }
    const int generation = GenerationOfYear(photo.year);
    trim.whiteWalls = generation == 1 && photo.variant % 3 == 0;
    trim.redLine = generation <= 2 && photo.variant % 3 == 1;
    trim.vinylRoof = generation <= 3 && photo.variant % 4 == 2;
    constexpr std::array early = {Trim::Stripe::None, Trim::Stripe::Racing, Trim::Stripe::None,
                                  Trim::Stripe::Rocker, Trim::Stripe::Hockey};
    constexpr std::array late = {Trim::Stripe::None, Trim::Stripe::None, Trim::Stripe::Rocker,
                                 Trim::Stripe::None, Trim::Stripe::Racing};
    trim.stripe = generation <= 3 ? early[static_cast<std::size_t>(photo.variant) % early.size()]
                                  : late[static_cast<std::size_t>(photo.variant) % late.size()];
    trim.stripeColour = contrast;
    return trim;
}

CarShape ShapeOf(const PlannedPhoto& photo)
{
    switch (photo.model) {
    case Model::Harwell:
        return ClassicHarwellShape();
    case Model::KestraOne:
        return KestraOneShape();
    case Model::KestraThree:
        return KestraThreeShape();
    case Model::SuperStallion:
        return SuperStallionShape();
    case Model::Tarrant:
        return TarrantShape();
    case Model::Vollandry:
        break;
    }
    return ShapeOfYear(photo.year);
}

} // namespace torvik::sample
