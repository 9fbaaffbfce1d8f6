#include "sample/photos/photo_plan.h"

#include "sample/geometry/noise.h"

#include <algorithm>
#include <array>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr int firstYear = 1967;
constexpr int lastYear = 2001;

QString FileName(const QString& prefix, const QString& letters, int number)
{
    return u"%1%2%3.JPG"_s.arg(prefix, letters).arg(number, 3, 10, '0'_L1);
}

/// The photos of a year: the hero picture first, then the other sides, details between them.
PlannedPhoto YearPhoto(int year, int number)
{
    constexpr std::array places = {Place::Coast,    Place::Autumn, Place::City, Place::Desert,
                                   Place::Showroom, Place::Strip,  Place::Snow};
    const int turn = year - firstYear;
    PlannedPhoto photo{.prefix = PrefixOfYear(year), .number = number};
    photo.file = FileName(photo.prefix, u"TOR"_s, number);
    photo.year = year;
    photo.variant = turn * 3 + number;
    photo.place = Cycled(places, turn * 3 + (number - 1) * 2);
    switch (number) {
    case 1:
        photo.view = turn % 3 == 2 ? View::FrontRight : View::FrontLeft;
        break;
    case 2:
        photo.view = turn % 4 == 1 ? View::SideRight : View::Side;
        break;
    case 3:
        photo.view = turn % 2 == 0 ? View::RearRight : View::RearLeft;
        break;
    case 4: {
        constexpr std::array details = {Motif::Car,    Motif::Dashboard, Motif::Car,
                                        Motif::Engine, Motif::Badge,     Motif::Car};
        constexpr std::array close = {View::Wheel, View::Nose, View::Nose,
                                      View::Nose,  View::Nose, View::Tail};
        photo.motif = Cycled(details, turn);
        photo.view = Cycled(close, turn);
        break;
    }
    case 5:
        photo.view = turn % 2 == 0 ? View::LowFront : View::High;
        break;
    case 6:
        if (turn % 2 == 0)
            photo.motif = turn % 4 == 0 ? Motif::Dashboard : Motif::Engine;
        photo.view = turn % 4 == 1 ? View::Wheel : View::Tail;
        break;
    default:
        photo.view = turn % 2 == 0 ? View::HeadOn : View::FrontRight;
        break;
    }
    if (year == 1985 && number == 1)
        photo.size = {4000, 3000};
    if ((year == 1990 || year == 1970) && number == 5)
        photo.size = {1920, 1164};
    if (year == 1973 && number == 5) {
        photo.view = View::LowFront;
        photo.size = {900, 1280};
    }
    if (year == 1998 && number == 3) {
        photo.size = {900, 1280};
        photo.storing = Storing::TurnedWithTag;
    }
    return photo;
}

PlannedPhoto TopicPhoto(const Topic& topic, int number)
{
    constexpr std::array views = {View::FrontLeft, View::Side, View::RearRight,
                                  View::Wheel,     View::High, View::FrontRight};
    PlannedPhoto photo{.file = FileName(topic.prefix, topic.letters, number),
                       .prefix = topic.prefix,
                       .number = number,
                       .view = Cycled(views, number - 1),
                       .variant = number - 1};
    const auto car = [&](Model model, int year, Place first, Place second) {
        photo.model = model;
        photo.year = year;
        photo.place = number % 2 == 1 ? first : second;
    };
    if (topic.prefix == "PT"_L1) {
        photo.place = Place::Studio;
        photo.motif = number % 3 == 1 ? Motif::Sketch : Motif::Clay;
        constexpr std::array projects = {1967, 1967, 1967, 1971, 1971, 1979};
        photo.year = Cycled(projects, number - 1);
    } else if (topic.prefix == "SB"_L1) {
        car(Model::Harwell, 1967, Place::Autumn, Place::Coast);
    } else if (topic.prefix == "M1"_L1) {
        car(Model::KestraOne, 1970, Place::Strip, Place::Coast);
    } else if (topic.prefix == "M3"_L1) {
        car(Model::KestraThree, 1986, Place::City, Place::Desert);
    } else if (topic.prefix == "MS"_L1) {
        car(Model::SuperStallion, 2001, Place::Showroom, Place::Strip);
    } else if (topic.prefix == "CW"_L1) {
        car(Model::Tarrant, 1968, Place::Strip, Place::Desert);
    } else if (topic.prefix == "ZZ"_L1) {
        photo.motif = Motif::Stamps;
    } else if (topic.prefix == "VM"_L1) {
        photo.motif = Motif::Sign;
    } else if (topic.prefix == "TD"_L1 || topic.prefix == "TF"_L1) {
        photo.motif = Motif::DieCast;
        photo.year = topic.prefix == "TD"_L1 ? 1967 + 4 * (number - 1) : 1970 + 7 * (number - 1);
    } else if (topic.prefix == "TE"_L1) {
        photo.motif = Motif::Knife;
    } else if (topic.prefix == "VC"_L1) {
        photo.motif = Motif::Cookies;
    } else if (topic.prefix == "US"_L1) {
        photo.motif = Motif::BoardGame;
    }
    return photo;
}

} // namespace

QString PrefixOfYear(int year)
{
    if (year >= 2000)
        return u"A%1"_s.arg(year - 2000);
    return QString::number(year - 1900);
}

const std::vector<Topic>& Topics()
{
    const auto text = [](const char* latin) { return QString::fromLatin1(latin); };
    static const std::vector<Topic> topics = {
        {text("CW"), text("TAR"), text("The Tarrant Torvik"), 3, {}, {}},
        {text("M1"), text("KES"), text("Torvik Kestra I"), 6, text("m100"), text("m10")},
        {text("M3"), text("KES"), text("Torvik Kestra III"), 4, {}, {}},
        {text("MS"), text("STA"), text("Torvik Super Stallion"), 4, {}, {}},
        {text("PT"), text("PRO"), text("Early Torvik Prototypes"), 6, text("pt00"), text("pt0")},
        {text("SB"), text("HAR"), text("The Classic Harwell"), 4, {}, {}},
        {text("TD"), text("DIE"), text("Danbury Mint Die Cast Models"), 6, text("tdm00"), text("tdm0")},
        {text("TE"), text("KNI"), text("Franklin Mint Collector Knives"), 4, text("tek00"), text("tek0")},
        {text("TF"), text("DIE"), text("Franklin Mint Die Cast Models"), 4, text("tfm00"), text("tfm0")},
        {text("US"), text("BRD"), text("The Torvik Monopoly Game"), 3, text("vck00"), text("vck00")},
        {text("VC"), text("COO"), text("Torvik Cookies"), 3, {}, {}},
        {text("VM"), text("SIG"), text("Torvik Metal Signs"), 5, text("vms0"), text("vms0")},
        {text("ZZ"), text("STP"), text("Torvik Postage Stamps"), 5, text("zz00"), text("zz0")},
    };
    return topics;
}

std::vector<PlannedPhoto> PlanPhotos()
{
    std::vector<PlannedPhoto> photos;
    for (int year = firstYear; year <= lastYear; ++year) {
        constexpr std::array more = {1, 0, 0, 2, 0, 1, 0};
        const int count = 5 + Cycled(more, year - firstYear);
        for (int number = 1; number <= count; ++number)
            photos.push_back(YearPhoto(year, number));
    }
    for (const Topic& topic : Topics()) {
        for (int number = 1; number <= topic.photos; ++number)
            photos.push_back(TopicPhoto(topic, number));
    }
    std::sort(photos.begin(), photos.end(),
              [](const PlannedPhoto& a, const PlannedPhoto& b) { return a.file < b.file; });
    return photos;
}

} // namespace torvik::sample
