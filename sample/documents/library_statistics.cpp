#include "sample/documents/library_statistics.h"

#include "sample/car/car_shape.h"
#include "sample/documents/article.h"
#include "sample/documents/engines.h"
#include "sample/documents/model_years.h"
#include "sample/documents/options.h"

#include <algorithm>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

Row RowOf(const Article& article, const QStringList& parts, const QColor& shade)
{
    Row row;
    for (const QString& part : parts) {
        Cell cell = article.CellOf(part, row.cells.empty() ? Align::Left : Align::Right);
        cell.paragraphs.front().before = 10;
        cell.paragraphs.front().after = 10;
        cell.shade = shade;
        row.cells.push_back(cell);
    }
    return row;
}

Row HeadOf(const Article& article, const QStringList& parts)
{
    Row row;
    row.heading = true;
    for (const QString& part : parts)
        row.cells.push_back(article.HeadCell(part, row.cells.empty() ? Align::Left : Align::Right));
    return row;
}

QString OrDash(int number)
{
    return number > 0 ? Grouped(number) : u"–"_s;
}

int MostPower(int year)
{
    int most = 0;
    for (const Engine& engine : EnginesOf(year))
        most = std::max(most, engine.power);
    return most;
}

} // namespace

RichDocument LibraryStatistics()
{
    ArticleStyle style;
    style.body = Typeface::Sans;
    style.bodySize = 20;
    style.accent = QColor(31, 63, 119);
    Article article(u"Torvik statistics"_s, Dialect::Styled, 1998, style);
    article.Title(u"All years in figures"_s);
    article.Text(
        u"Cars built by season and body, the price of the simplest coupe, and the power of the strongest "
        "engine on the order sheet. The ground changes its shade with the generation of the body."_s);
    Table table;
    table.border = Border::Rules;
    table.widths = {850, 1100, 1150, 1200, 1250, 950, 700};
    table.rows.push_back(HeadOf(
        article, {u"Season"_s, u"Coupe"_s, u"Fastback"_s, u"Convertible"_s, u"All"_s, u"Price"_s, u"bhp"_s}));
    ModelYear sum{};
    const ModelYear* best = &ModelYearOf(1967);
    const ModelYear* least = best;
    for (const ModelYear& year : ModelYears()) {
        const QColor shade = GenerationOfYear(year.year) % 2 == 1 ? article.Tint() : QColor();
        table.rows.push_back(RowOf(article,
                                   {QString::number(year.year), Grouped(year.coupes), OrDash(year.fastbacks),
                                    OrDash(year.convertibles), u'*' + Grouped(year.Built()) + u'*',
                                    Dollars(year.price), QString::number(MostPower(year.year))},
                                   shade));
        sum.coupes += year.coupes;
        sum.fastbacks += year.fastbacks;
        sum.convertibles += year.convertibles;
        best = year.Built() > best->Built() ? &year : best;
        least = year.Built() < least->Built() ? &year : least;
    }
    table.rows.push_back(
        HeadOf(article, {u"All"_s, Grouped(sum.coupes), Grouped(sum.fastbacks), Grouped(sum.convertibles),
                         Grouped(sum.Built()), QString(), QString()}));
    article.AddTable(table);
    article.Heading(u"High and low"_s);
    article.Bullet(u"The best season was *%1* with %2 cars, the weakest *%3* with %4."_s.arg(best->year)
                       .arg(Grouped(best->Built()))
                       .arg(least->year)
                       .arg(Grouped(least->Built())));
    article.Bullet(u"One car in %1 was a convertible, though there was none in nine seasons."_s.arg(
        sum.Built() / sum.convertibles));
    article.Bullet(
        u"From %1 to %2 the coupe’s price rose to %3 times what it had been."_s.arg(1967).arg(2001).arg(
            double(ModelYearOf(2001).price) / ModelYearOf(1967).price, 0, 'f', 1));
    return article.Take();
}

} // namespace torvik::sample
