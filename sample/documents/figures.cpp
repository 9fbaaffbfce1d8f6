#include "sample/documents/figures.h"

#include "sample/car/car_shape.h"
#include "sample/drawings/script.h"

#include <cmath>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// A table of drawings/figures.txt.
Value TableNamed(const char* name)
{
    Script tables("figures");
    tables.Run();
    return tables.Get(name);
}

std::vector<ModelYear> ReadModelYears()
{
    std::vector<ModelYear> read;
    const Value rows = TableNamed("years");
    for (const Value& row : rows.Items())
        read.push_back({row.At(0).Whole(), row.At(1).Whole(), row.At(2).Whole(), row.At(3).Whole(),
                        row.At(4).Whole(), row.At(5).Whole()});
    return read;
}

std::vector<Option> ReadOptions()
{
    std::vector<Option> read;
    const Value rows = TableNamed("options");
    for (const Value& row : rows.Items())
        read.push_back({static_cast<OptionGroup>(row.At(0).Whole()), row.At(1).Text().toUtf8(),
                        row.At(2).Whole(), row.At(3).Whole(), row.At(4).Whole()});
    return read;
}

} // namespace

std::span<const ModelYear> ModelYears()
{
    static const std::vector<ModelYear> years = ReadModelYears();
    return years;
}

const ModelYear& ModelYearOf(int year)
{
    const std::span<const ModelYear> years = ModelYears();
    if (year < years.front().year || year > years.back().year)
        throw std::out_of_range("There is no such model year.");
    return years[static_cast<std::size_t>(year - years.front().year)];
}

QString FastbackName(int year)
{
    return year < 1974 ? u"Fastback"_s : u"Hatchback"_s;
}

Measures MeasuresOf(int year)
{
    const CarShape shape = ShapeOfYear(year);
    const auto millimetres = [](double metres) { return static_cast<int>(std::lround(metres * 200)) * 5; };
    double highest = 0;
    double widest = 0;
    for (double s = 0; s < shape.length; s += 0.05) {
        highest = std::max(highest, shape.roof(s));
        widest = std::max(widest, shape.halfWidth(s));
    }
    return {millimetres(shape.length), millimetres(shape.rearAxle - shape.frontAxle), millimetres(2 * widest),
            millimetres(highest)};
}

const std::vector<Engine>& Engines()
{
    static const std::vector<Engine> engines = [] {
        std::vector<Engine> read;
        const Value rows = TableNamed("engines");
        for (const Value& row : rows.Items()) {
            const auto number = [&](std::size_t i) { return row.At(i).Number(); };
            const auto whole = [&](std::size_t i) { return row.At(i).Whole(); };
            const auto words = [&](std::size_t i) { return row.At(i).Text().toUtf8(); };
            read.push_back({words(0).at(0), words(1), words(2), number(3), number(4), number(5), number(6),
                            words(7), whole(8), whole(9), whole(10), whole(11), whole(12), whole(13)});
        }
        return read;
    }();
    return engines;
}

std::vector<Engine> EnginesOf(int year)
{
    std::vector<Engine> found;
    for (const Engine& engine : Engines()) {
        if (engine.from <= year && year <= engine.to)
            found.insert(engine.extra == 0 ? found.begin() : found.end(), engine);
    }
    return found;
}

QString EngineName(const Engine& engine)
{
    return QString::fromLatin1(engine.name);
}

double SecondsToSixty(const Engine& engine, int weight)
{
    return 0.82 * std::pow(double(weight + 80) / engine.power, 0.88) + 2.6;
}

int TopSpeed(const Engine& engine)
{
    return static_cast<int>(std::lround(20.6 * std::cbrt(engine.power)));
}

std::vector<Option> OptionsOf(int year, OptionGroup group)
{
    static const std::vector<Option> all = ReadOptions();
    std::vector<Option> found;
    for (const Option& option : all) {
        if (option.group == group && option.from <= year && year <= option.to)
            found.push_back(option);
    }
    return found;
}

QString GroupName(OptionGroup group)
{
    // In the order of the groups.
    static const QString names[] = {u"Drive, brakes and springs"_s, u"Comfort"_s, u"Appearance"_s,
                                    u"Sound"_s};
    return names[static_cast<std::size_t>(group)];
}

int PriceIn(int year, int priceOf1967)
{
    // Half as fast as the car itself: what had been a luxury became cheaper to make.
    const double level = 0.5 + 0.5 * ModelYearOf(year).price / ModelYearOf(1967).price;
    const int exact = static_cast<int>(std::floor(priceOf1967 * level + 0.5));
    return year < 1975 || exact < 20 ? exact : (exact + 2) / 5 * 5;
}

QString Grouped(int number)
{
    QString digits = QString::number(number);
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3)
        digits.insert(at, u',');
    return digits;
}

QString Dollars(int amount)
{
    return u"$"_s + Grouped(amount);
}

} // namespace torvik::sample
