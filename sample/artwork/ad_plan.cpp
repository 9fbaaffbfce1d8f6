#include "sample/artwork/ad_plan.h"

#include "sample/artwork/art_plan.h"
#include "sample/documents/figures.h"
#include "sample/files/text_store.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

const char serif[] = "Liberation Serif";
const char sans[] = "Liberation Sans";
const char narrow[] = "Liberation Sans Narrow";
const char slab[] = "DejaVu Serif";
const char wide[] = "DejaVu Sans";

Type TypeOf(const char* family, bool bold = false, bool italic = false, double spacing = 100,
            double stretch = 1)
{
    return {QString::fromLatin1(family), bold, italic, spacing, stretch};
}

struct AdRow {
    int year;
    AdLayout layout;
    View view;
    Place place;
    const char* paint;
    QRgb paper;
    QRgb ink;
    QRgb accent;
};

using enum AdLayout;
constexpr AdRow adRows[] = {
    {1967, PictureOverText, View::FrontLeft, Place::Coast, "Ember Red", 0xFAF7EE, 0x1A1818, 0x9A1420},
    {1968, PictureOverText, View::Side, Place::Coast, "Wharf Blue", 0xF8F6F0, 0x181A1E, 0x1F4E86},
    {1969, FullPicture, View::LowFront, Place::Desert, "Vermilion Sands", 0xF6F2E8, 0x1A1614, 0xC04420},
    {1970, PictureOverText, View::RearRight, Place::Autumn, "Plum Crazed", 0xF7F3EE, 0x1C161C, 0x5A2A55},
    {1971, Stripes, View::FrontLeft, Place::Desert, "Marmalade Orange", 0xF3E3BF, 0x3A2114, 0xD8590F},
    {1972, Stripes, View::Side, Place::Coast, "Ice Lilac", 0xE9E0EE, 0x35244A, 0x7E5FA6},
    {1973, Stripes, View::Nose, Place::Autumn, "Avocado Parade", 0xEDE6C8, 0x2F3318, 0x6E7B33},
    {1974, Stripes, View::FrontRight, Place::City, "Mustard Seed", 0xF7EBC6, 0x33261A, 0xC4942A},
    {1975, Grid, View::LowFront, Place::Strip, "Chestnut Glow", 0xF2E6D4, 0x2C1A10, 0x8A3A17},
    {1976, Stripes, View::High, Place::Coast, "Pale Linen", 0xF6F4EE, 0x18264A, 0x2456B0},
    {1977, FullPicture, View::High, Place::Autumn, "Dove Silver-Blue", 0xF2EDE2, 0x1C2026, 0x4E6A80},
    {1978, Stripes, View::LowFront, Place::Desert, "Tangerine Glow", 0x2C1A12, 0xF6E2B4, 0xE0702A},
    {1979, Spread, View::FrontLeft, Place::Showroom, "Quarry Grey", 0xFFFFFF, 0x16181C, 0xC8502A},
    {1980, Spread, View::FrontLeft, Place::Snow, "Poppy Red", 0xF4F2EE, 0x1A1A1E, 0xB80F1A},
    {1981, Grid, View::Side, Place::Autumn, "Champagne Sand", 0xFAFAF6, 0x1E2420, 0x2F7A4A},
    {1982, FullPicture, View::LowFront, Place::Strip, "Poppy Red", 0x141416, 0xF4F2EC, 0xD81E24},
    {1983, Grid, View::FrontRight, Place::Coast, "Midsummer Yellow", 0xFDFBF0, 0x1C2A44, 0xD8A818},
    {1984, PictureOverText, View::FrontLeft, Place::Showroom, "Oxford Chalk", 0xF4F4F2, 0x22242A, 0x8A1620},
    {1985, FullPicture, View::RearRight, Place::Snow, "Stove Black", 0xEEF1F4, 0x16181C, 0x3A6EA5},
    {1986, Spread, View::HeadOn, Place::City, "Stove Black", 0x101114, 0xF0EEE8, 0xC89632},
    {1987, Spread, View::FrontRight, Place::Coast, "Scarlet Pimpernel", 0xF8F8F6, 0x18181C, 0xC41E24},
    {1988, Grid, View::RearLeft, Place::Desert, "Harbour Blue", 0xFFFFFF, 0x14161C, 0x1A2F5C},
    {1989, FullPicture, View::FrontLeft, Place::Coast, "Crystal White", 0xF4F6F8, 0x1A1E26, 0x143C92},
    {1990, Spread, View::FrontLeft, Place::Coast, "Jonquil", 0xFFF9D8, 0x20200E, 0xC2A000},
    {1991, Grid, View::Wheel, Place::Autumn, "Laser Red", 0xF6F6F6, 0x18181C, 0xA6101E},
    {1992, Spread, View::FrontRight, Place::Autumn, "Wild Strawberry", 0xFFF4F2, 0x3A0E20, 0xA8244E},
    {1993, Spread, View::LowFront, Place::Strip, "Royal Violet", 0x14121A, 0xF0ECF4, 0x8A6AC8},
    {1994, Spread, View::RearLeft, Place::Showroom, "Laser Red", 0xF7F5F0, 0x201A18, 0xA6101E},
    {1995, Spread, View::FrontRight, Place::Snow, "Opal Frost", 0xF2F4F2, 0x20262A, 0x6A7A80},
    {1996, Spread, View::FrontLeft, Place::City, "Mystic Heron", 0x12181C, 0xE8F0F2, 0x7FA8B4},
    {1997, PictureOverText, View::High, Place::Studio, "Sterling Silver", 0xFFFFFF, 0x1A1E22, 0x2A6A8A},
    {1998, FullPicture, View::FrontRight, Place::Autumn, "Chrome Orchid", 0xF4F0F6, 0x241A2C, 0x7D4A9C},
    {1999, FullPicture, View::RearLeft, Place::Desert, "Tropic Lime", 0x14180E, 0xF2F6E6, 0x9CC83A},
    {2000, FullPicture, View::FrontLeft, Place::City, "Sunburst Gold", 0x12110C, 0xF6F0DC, 0xD8B048}};

Type HeadlineOf(int year)
{
    if (year < 1971)
        return TypeOf(serif, true);
    if (year < 1979)
        return year % 2 == 0 ? TypeOf(slab, true, false, 94, 1.0) : TypeOf(serif, true, true, 98, 1.05);
    if (year < 1989)
        return year % 2 == 0 ? TypeOf(narrow, true, false, 98) : TypeOf(sans, true, false, 94);
    if (year < 1997)
        return year % 2 == 0 ? TypeOf(serif, false, true, 102) : TypeOf(wide, false, false, 96, 0.92);
    return TypeOf(sans, false, false, 104);
}

Type BodyOf(int year)
{
    if (year < 1979)
        return TypeOf(serif);
    if (year < 1989)
        return TypeOf(year % 3 == 0 ? sans : narrow);
    return year < 1997 ? TypeOf(serif) : TypeOf(sans);
}

QString OptionPrice(int year, const QString& word)
{
    for (const OptionGroup group :
         {OptionGroup::Drive, OptionGroup::Comfort, OptionGroup::Looks, OptionGroup::Sound}) {
        for (const Option& option : OptionsOf(year, group)) {
            if (QString::fromUtf8(option.name).contains(word))
                return Dollars(PriceIn(year, option.price));
        }
    }
    throw std::runtime_error("There was no such option: " + word.toStdString());
}

QString FigureOf(int year, const QString& name)
{
    const ModelYear& model = ModelYearOf(year);
    const std::vector<Engine> engines = EnginesOf(year);
    const Engine& strongest = *std::max_element(
        engines.begin(), engines.end(), [](const Engine& a, const Engine& b) { return a.power < b.power; });
    if (name == "price"_L1)
        return Dollars(model.price);
    if (name == "power"_L1)
        return QString::number(strongest.power);
    if (name == "engine"_L1)
        return EngineName(strongest);
    if (name == "standard"_L1)
        return EngineName(engines.front());
    if (name == "sixty"_L1)
        return QString::number(SecondsToSixty(strongest, model.weight), 'f', 1);
    if (name == "speed"_L1)
        return QString::number(TopSpeed(strongest));
    if (name == "weight"_L1)
        return Grouped(model.weight);
    if (name.startsWith("option "_L1))
        return OptionPrice(year, name.mid(7));
    throw std::runtime_error("There is no such figure: " + name.toStdString());
}

QString WithFigures(int year, QString text)
{
    static const QRegularExpression figure(u"\\{([^}]*)\\}"_s);
    for (QRegularExpressionMatch match = figure.match(text); match.hasMatch(); match = figure.match(text))
        text.replace(match.capturedStart(), match.capturedLength(), FigureOf(year, match.captured(1)));
    return text.replace(u'\'', QChar(0x2019));
}

} // namespace

QString PlannedAd::File() const
{
    return u"ads/%1brto00.jpg"_s.arg(TwoDigits(year));
}

QSize PlannedAd::Size() const
{
    return IsLandscapeAd(year) ? QSize(1600, 1200) : QSize(1232, 1600);
}

bool IsLandscapeAd(int year)
{
    constexpr std::array years = {1979, 1980, 1986, 1987, 1990, 1992, 1993, 1994, 1995, 1996};
    return std::find(years.begin(), years.end(), year) != years.end();
}

const std::vector<PlannedAd>& PlanAds()
{
    static const std::vector<PlannedAd> ads = [] {
        std::vector<PlannedAd> planned;
        planned.reserve(std::size(adRows));
        for (const AdRow& row : adRows)
            planned.push_back({row.year, row.layout, row.view, row.place, QString::fromLatin1(row.paint),
                               QColor(row.paper), QColor(row.ink), QColor(row.accent), HeadlineOf(row.year),
                               BodyOf(row.year)});
        return planned;
    }();
    return ads;
}

AdCopy AdCopyOf(int year)
{
    const TextSection section = StoredSections(u"ad_copy"_s).at(QString::number(year));
    QStringList lines = section.body.split(u'\n', Qt::SkipEmptyParts);
    AdCopy copy;
    copy.headline = section.title;
    copy.lead = WithFigures(year, lines.takeFirst());
    for (const QString& line : lines)
        copy.paragraphs.append(WithFigures(year, line));
    return copy;
}

} // namespace torvik::sample
