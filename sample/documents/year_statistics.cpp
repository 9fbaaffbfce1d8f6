#include "sample/car/car_shape.h"
#include "sample/documents/article_source.h"
#include "sample/documents/figures.h"
#include "sample/documents/year_articles.h"

#include <algorithm>
#include <cmath>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// A row of a table as the articles' source has it.
QString RowOf(const QStringList& parts)
{
    return u"\n| "_s + parts.join(u" | "_s);
}

/// The same for one that exists only where there were such cars.
QString RowWhere(bool exists, const QStringList& parts)
{
    return exists ? RowOf(parts) : QString();
}

QString Percent(int part, int all)
{
    return u"%1 %"_s.arg(100.0 * part / all, 0, 'f', 1);
}

QString ProductionOf(const ModelYear& year)
{
    const auto body = [&year](const QString& name, int cars) {
        return RowWhere(cars > 0, {name, Grouped(cars), Percent(cars, year.Built()), u"2 + 2"_s});
    };
    return u"== Production\n@table grid 3150 1750r 1300r 1000r\n|= Body | Cars built | Share | Seats"_s +
           body(u"Coupe"_s, year.coupes) + body(FastbackName(year.year), year.fastbacks) +
           body(u"Convertible"_s, year.convertibles) +
           u"\n|+ All bodies | %1 | 100.0 % |\n"_s.arg(Grouped(year.Built()));
}

QString MeasuresText(const ModelYear& year)
{
    const Measures measures = MeasuresOf(year.year);
    const auto length = [](const QString& name, int millimetres) {
        return RowOf(
            {name, Grouped(millimetres) + u" mm"_s, QString::number(millimetres / 25.4, 'f', 1) + u'″'});
    };
    const auto weight = [](const QString& name, int kilograms) {
        return RowOf({u"Weight, "_s + name, Grouped(kilograms) + u" kg"_s,
                      Grouped(static_cast<int>(std::floor(kilograms * 2.20462 + 0.5))) + u" lb"_s});
    };
    QString text =
        u"== Measures and weights\n@table grid 3700 1800r 1700r\n|= Measure | Metric | Inches, pounds"_s +
        length(u"Overall length"_s, measures.length) + length(u"Wheelbase"_s, measures.wheelbase) +
        length(u"Overall width"_s, measures.width) + length(u"Overall height"_s, measures.height) +
        weight(u"coupe"_s, year.weight);
    if (year.fastbacks > 0)
        text += weight(FastbackName(year.year).toLower(), year.weight + 18);
    if (year.convertibles > 0)
        text += weight(u"convertible"_s, year.weight + 72);
    return text + u'\n';
}

QString EnginesText(const ModelYear& year)
{
    QString engines = u"== Engines\n@table grid 2350 700r 950r 1600r 900r 700r\n"
                      "|= Engine | Code | Litres | bhp at rpm | lb-ft | Ratio"_s;
    QString road = u"\n== On the road\n@table grid 3100 1300r 1300r 1500r\n"
                   "|= Coupe with | 0 to 60 | Top speed | On order"_s;
    for (const Engine& engine : EnginesOf(year.year)) {
        engines += RowOf({EngineName(engine), QString(QLatin1Char(engine.code)),
                          QString::number(engine.litres, 'f', 1),
                          u"%1 at %2"_s.arg(engine.power).arg(Grouped(engine.powerAt)),
                          QString::number(engine.torque), QString::number(engine.compression, 'f', 1)});
        road += RowOf({EngineName(engine), u"%1 s"_s.arg(SecondsToSixty(engine, year.weight), 0, 'f', 1),
                       u"%1 mph"_s.arg(TopSpeed(engine)),
                       engine.extra == 0 ? u"standard"_s : u'+' + Dollars(PriceIn(year.year, engine.extra))});
    }
    return engines + road + u'\n';
}

QString PricesText(const ModelYear& year)
{
    const ModelYear* before = year.year > 1967 ? &ModelYearOf(year.year - 1) : nullptr;
    const auto body = [&](const QString& name, bool isThere, bool wasThere, int share) {
        return RowWhere(isThere, {name, Dollars(year.price * share / 100),
                                  before && wasThere ? Dollars(before->price * share / 100) : u"—"_s});
    };
    return u"== List prices\n@table grid 4200 1500r 1500r\n|= Body with the standard engine | Price | A season ago"_s +
           body(u"Coupe"_s, true, true, 100) + body(FastbackName(year.year), year.fastbacks > 0, true, 105) +
           body(u"Convertible"_s, year.convertibles > 0, before && before->convertibles > 0,
                year.year < 1980 ? 109 : 131) +
           u'\n';
}

QString OrDash(int number)
{
    return number > 0 ? Grouped(number) : u"–"_s;
}

} // namespace

RichDocument YearStatistics(int year)
{
    const ModelYear& figures = ModelYearOf(year);
    Article article = NewYearArticle(year, YearArticle::Statistics, u"%1 statistics"_s.arg(year));
    article.Title(u"%1 in figures"_s.arg(year));
    AddSource(article,
              ProductionOf(figures) + MeasuresText(figures) + EnginesText(figures) + PricesText(figures));
    article.Text(u"_Power is stated %1, as the makers did in that year. Times and speeds are the editors’ "
                 "reckoning from weight and power with two people aboard; prices are without tax and "
                 "delivery._"_s.arg(year < 1972 ? u"gross, with the engine on a bench and nothing attached"_s
                                                : u"net, with the engine as it sits in the car"_s));
    return article.Take();
}

RichDocument LibraryStatistics()
{
    const ArticleStyle style{.body = Typeface::Sans, .bodySize = 20, .accent = QColor(31, 63, 119)};
    Article article(u"Torvik statistics"_s, Dialect::Styled, 1998, style);
    article.Title(u"All years in figures"_s);
    article.Text(
        u"Cars built by season and body, the price of the simplest coupe, and the power of the strongest "
        "engine on the order sheet. The ground changes its shade with the generation of the body."_s);
    Table table{.widths = {850, 1100, 1150, 1200, 1250, 950, 700}, .border = Border::Rules};
    const auto addRow = [&](const QStringList& parts, bool heading, const QColor& shade) {
        Row row{.heading = heading};
        for (const QString& part : parts) {
            const Align align = row.cells.empty() ? Align::Left : Align::Right;
            Cell cell = heading ? article.HeadCell(part, align) : article.CellOf(part, align);
            if (!heading) {
                cell.paragraphs.front().before = cell.paragraphs.front().after = 10;
                cell.shade = shade;
            }
            row.cells.push_back(cell);
        }
        table.rows.push_back(row);
    };
    addRow({u"Season"_s, u"Coupe"_s, u"Fastback"_s, u"Convertible"_s, u"All"_s, u"Price"_s, u"bhp"_s}, true,
           {});
    ModelYear sum{};
    const ModelYear* best = &ModelYearOf(1967);
    const ModelYear* least = best;
    for (const ModelYear& year : ModelYears()) {
        int power = 0;
        for (const Engine& engine : EnginesOf(year.year))
            power = std::max(power, engine.power);
        addRow({QString::number(year.year), Grouped(year.coupes), OrDash(year.fastbacks),
                OrDash(year.convertibles), u'*' + Grouped(year.Built()) + u'*', Dollars(year.price),
                QString::number(power)},
               false, GenerationOfYear(year.year) % 2 == 1 ? article.Tint() : QColor());
        sum.coupes += year.coupes;
        sum.fastbacks += year.fastbacks;
        sum.convertibles += year.convertibles;
        best = year.Built() > best->Built() ? &year : best;
        least = year.Built() < least->Built() ? &year : least;
    }
    addRow({u"All"_s, Grouped(sum.coupes), Grouped(sum.fastbacks), Grouped(sum.convertibles),
            Grouped(sum.Built()), QString(), QString()},
           true, {});
    article.AddTable(table);
    article.Heading(u"High and low"_s);
    article.Bullet(u"The best season was *%1* with %2 cars, the weakest *%3* with %4."_s.arg(best->year)
                       .arg(Grouped(best->Built()))
                       .arg(least->year)
                       .arg(Grouped(least->Built())));
    article.Bullet(u"One car in %1 was a convertible, though there was none in nine seasons."_s.arg(
        sum.Built() / sum.convertibles));
    article.Bullet(u"From 1967 to 2001 the coupe’s price rose to %1 times what it had been."_s.arg(
        double(ModelYearOf(2001).price) / ModelYearOf(1967).price, 0, 'f', 1));
    return article.Take();
}

} // namespace torvik::sample
