#include "sample/artwork/ad_plan.h"

#include "sample/artwork/art_maker.h"
#include "sample/documents/figures.h"
#include "sample/drawings/script.h"
#include "sample/files/text_store.h"

#include <QRegularExpression>

#include <algorithm>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

// In the order of their kinds.
constexpr const char* layouts[] = {"PictureOverText", "FullPicture", "Stripes", "Grid", "Spread"};
constexpr const char* views[] = {"FrontLeft", "FrontRight", "Side",   "SideRight", "RearLeft", "RearRight",
                                 "High",      "LowFront",   "HeadOn", "Wheel",     "Nose",     "Tail"};
constexpr const char* places[] = {"Coast", "Desert", "City", "Strip", "Showroom", "Snow", "Autumn", "Studio"};

PlannedAd ReadAd(int year)
{
    Script table("ads");
    table.Set(u"year"_s, year);
    table.Run();
    const Value& row = table.Get("ads").At(static_cast<std::size_t>(year - 1967));
    const auto colour = [&row](std::size_t i) { return QColor(static_cast<QRgb>(row.At(i).Number())); };
    const Value& headline = table.Get("headline");
    return {row.At(0).Whole(),
            row.At(1).OneOf<AdLayout>(layouts),
            row.At(2).OneOf<View>(views),
            row.At(3).OneOf<Place>(places),
            row.At(4).Text(),
            colour(5),
            colour(6),
            colour(7),
            {headline.At(0).Text(), headline.At(1).Number() != 0, headline.At(2).Number() != 0,
             headline.At(3).Number(), headline.At(4).Number()},
            {table.Get("body").Text()}};
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
    const std::pair<QLatin1String, QString> figures[] = {
        {"price"_L1, Dollars(model.price)},
        {"power"_L1, QString::number(strongest.power)},
        {"engine"_L1, EngineName(strongest)},
        {"standard"_L1, EngineName(engines.front())},
        {"sixty"_L1, QString::number(SecondsToSixty(strongest, model.weight), 'f', 1)},
        {"speed"_L1, QString::number(TopSpeed(strongest))},
        {"weight"_L1, Grouped(model.weight)}};
    for (const auto& [word, figure] : figures) {
        if (name == word)
            return figure;
    }
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
    return layout == AdLayout::Spread ? QSize(1600, 1200) : QSize(1232, 1600);
}

const std::vector<PlannedAd>& PlanAds()
{
    static const std::vector<PlannedAd> ads = [] {
        std::vector<PlannedAd> planned;
        planned.reserve(34);
        for (int year = 1967; year <= 2000; ++year)
            planned.push_back(ReadAd(year));
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
