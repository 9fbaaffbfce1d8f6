#include "sample/car/paints.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

Paint Named(const char* name, QRgb colour, double metallic)
{
    return {QString::fromLatin1(name), QColor(colour), metallic};
}

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

} // namespace torvik::sample
