#include "sample/documents/article.h"
#include "sample/documents/engines.h"
#include "sample/documents/model_years.h"
#include "sample/documents/options.h"
#include "sample/documents/year_articles.h"
#include "sample/documents/year_style.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// Adds rows to a table of text on the left and numbers on the right.
class FigureTable {
public:
    FigureTable(Article& article, const std::vector<int>& widths) : article_(article)
    {
        table_.widths = widths;
    }

    void Head(const QStringList& parts) { AddRow(parts, true); }
    void Add(const QStringList& parts) { AddRow(parts, false); }
    /// A sum, set apart in bold.
    void Sum(QStringList parts)
    {
        for (QString& part : parts)
            part = u'*' + part + u'*';
        AddRow(parts, false);
        for (Cell& cell : table_.rows.back().cells)
            cell.shade = QColor(217, 217, 217);
    }
    void Finish() { article_.AddTable(table_); }

private:
    void AddRow(const QStringList& parts, bool heading)
    {
        Row row;
        row.heading = heading;
        for (const QString& part : parts) {
            const Align align = row.cells.empty() ? Align::Left : Align::Right;
            Cell cell = heading ? article_.HeadCell(part, align) : article_.CellOf(part, align);
            if (!heading && table_.rows.size() % 2 == 0)
                cell.shade = article_.Tint();
            row.cells.push_back(cell);
        }
        table_.rows.push_back(row);
    }

    Article& article_;
    Table table_;
};

void AddProduction(Article& article, const ModelYear& year)
{
    article.Heading(u"Production"_s);
    FigureTable table(article, {3150, 1750, 1300, 1000});
    table.Head({u"Body"_s, u"Cars built"_s, u"Share"_s, u"Seats"_s});
    const auto add = [&](const QString& name, int cars, const char* seats) {
        if (cars > 0)
            table.Add({name, Grouped(cars), u"%1 %"_s.arg(100.0 * cars / year.Built(), 0, 'f', 1),
                       QString::fromLatin1(seats)});
    };
    add(u"Coupe"_s, year.coupes, "2 + 2");
    add(FastbackName(year.year), year.fastbacks, "2 + 2");
    add(u"Convertible"_s, year.convertibles, "2 + 2");
    table.Sum({u"All bodies"_s, Grouped(year.Built()), u"100.0 %"_s, QString()});
    table.Finish();
}

void AddMeasures(Article& article, const ModelYear& year)
{
    const Measures measures = MeasuresOf(year.year);
    article.Heading(u"Measures and weights"_s);
    FigureTable table(article, {3700, 1800, 1700});
    table.Head({u"Measure"_s, u"Metric"_s, u"Inches, pounds"_s});
    const auto length = [&](const char* name, int millimetres) {
        table.Add({QString::fromLatin1(name), Grouped(millimetres) + u" mm"_s,
                   QString::number(millimetres / 25.4, 'f', 1) + u'″'});
    };
    const auto weight = [&](const QString& name, int kilograms) {
        table.Add({name, Grouped(kilograms) + u" kg"_s,
                   Grouped(static_cast<int>(kilograms * 2.20462 + 0.5)) + u" lb"_s});
    };
    length("Overall length", measures.length);
    length("Wheelbase", measures.wheelbase);
    length("Overall width", measures.width);
    length("Overall height", measures.height);
    weight(u"Weight, coupe"_s, year.weight);
    if (year.fastbacks > 0)
        weight(u"Weight, "_s + FastbackName(year.year).toLower(), year.weight + 18);
    if (year.convertibles > 0)
        weight(u"Weight, convertible"_s, year.weight + 72);
    table.Finish();
}

void AddEngines(Article& article, int year)
{
    article.Heading(u"Engines"_s);
    FigureTable table(article, {2350, 700, 950, 1600, 900, 700});
    table.Head({u"Engine"_s, u"Code"_s, u"Litres"_s, u"bhp at rpm"_s, u"lb-ft"_s, u"Ratio"_s});
    for (const Engine& engine : EnginesOf(year)) {
        table.Add({EngineName(engine), QString(QLatin1Char(engine.code)),
                   QString::number(engine.litres, 'f', 1),
                   u"%1 at %2"_s.arg(engine.power).arg(Grouped(engine.powerAt)),
                   QString::number(engine.torque), QString::number(engine.compression, 'f', 1)});
    }
    table.Finish();
}

void AddPerformance(Article& article, const ModelYear& year)
{
    article.Heading(u"On the road"_s);
    FigureTable table(article, {3100, 1300, 1300, 1500});
    table.Head({u"Coupe with"_s, u"0 to 60"_s, u"Top speed"_s, u"On order"_s});
    for (const Engine& engine : EnginesOf(year.year)) {
        table.Add({EngineName(engine), u"%1 s"_s.arg(SecondsToSixty(engine, year.weight), 0, 'f', 1),
                   u"%1 mph"_s.arg(TopSpeed(engine)),
                   engine.extra == 0 ? u"standard"_s : u'+' + Dollars(PriceIn(year.year, engine.extra))});
    }
    table.Finish();
}

void AddPrices(Article& article, const ModelYear& year)
{
    article.Heading(u"List prices"_s);
    FigureTable table(article, {4200, 1500, 1500});
    table.Head({u"Body with the standard engine"_s, u"Price"_s, u"A season ago"_s});
    const ModelYear* before = year.year > 1967 ? &ModelYearOf(year.year - 1) : nullptr;
    const auto add = [&](const QString& name, bool wasThere, int share) {
        table.Add({name, Dollars(year.price * share / 100),
                   before && wasThere ? Dollars(before->price * share / 100) : u"—"_s});
    };
    add(u"Coupe"_s, true, 100);
    if (year.fastbacks > 0)
        add(FastbackName(year.year), true, 105);
    if (year.convertibles > 0)
        add(u"Convertible"_s, before && before->convertibles > 0, year.year < 1980 ? 109 : 131);
    table.Finish();
}

} // namespace

RichDocument YearStatistics(int year)
{
    const ModelYear& figures = ModelYearOf(year);
    Article article = NewYearArticle(year, YearArticle::Statistics, u"%1 statistics"_s.arg(year));
    article.Title(u"%1 in figures"_s.arg(year));
    AddProduction(article, figures);
    AddMeasures(article, figures);
    AddEngines(article, year);
    AddPerformance(article, figures);
    AddPrices(article, figures);
    article.Text(u"_Power is stated %1, as the makers did in that year. Times and speeds are the editors’ "
                 "reckoning from weight and power with two people aboard; prices are without tax and "
                 "delivery._"_s.arg(year < 1972 ? u"gross, with the engine on a bench and nothing attached"_s
                                                : u"net, with the engine as it sits in the car"_s));
    return article.Take();
}

} // namespace torvik::sample
