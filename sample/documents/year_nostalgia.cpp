#include "sample/documents/article_source.h"
#include "sample/documents/figures.h"
#include "sample/documents/year_articles.h"
#include "sample/files/text_store.h"

#include <cmath>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// What an everyday thing cost, from its price in 1967: everything rose with the car, each at its own pace.
QString CostOf(const ModelYear& year, double cents, double pace)
{
    const double level = double(year.price) / ModelYearOf(1967).price;
    const double exact = cents * std::pow(level, pace);
    return u"$%1"_s.arg(std::round(exact) / 100, 0, 'f', 2);
}

void AddCosts(Article& article, const ModelYear& year)
{
    article.Heading(u"What things cost"_s);
    const std::vector<TabStop> tabs = {{4200, TabStop::Kind::Decimal, true}};
    const auto add = [&](const char* name, const QString& cost) {
        Paragraph line = article.Plain(QString::fromUtf8(name) + u'\t' + cost);
        line.tabs = tabs;
        line.left = 400;
        line.after = 30;
        article.Add(line);
    };
    add("A loaf of bread", CostOf(year, 22, 0.95));
    add("A litre of milk", CostOf(year, 25, 0.75));
    add("A gallon of petrol", CostOf(year, 33, 0.7));
    add("A stamp for a letter", CostOf(year, 5, 1.0));
    add("A seat in the cinema, stalls", CostOf(year, 125, 0.9));
    add("A long-playing record or its heir", CostOf(year, 380, 0.7));
    add("A week’s wage at the works", CostOf(year, 11650, 0.93));
    add("A Vollandry coupe", Dollars(year.price) + u".00"_s);
}

} // namespace

RichDocument YearNostalgia(int year)
{
    const std::map<QString, TextSection> texts = StoredSections(u"nostalgia_%1"_s.arg(year / 10));
    const TextSection& text = texts.at(QString::number(year));
    Article article = NewYearArticle(year, YearArticle::Nostalgia, u"Nostalgia %1"_s.arg(year));
    article.Title(u"_%1_"_s.arg(year));
    Paragraph motto = article.Plain(u'~' + text.title + u'~');
    for (Run& run : motto.runs) {
        run.look.italic = true;
        run.look.halfPoints = 28;
    }
    motto.align = Align::Centre;
    motto.after = 160;
    article.Add(motto);
    AddSource(article, text.body);
    AddCosts(article, ModelYearOf(year));
    return article.Take();
}

} // namespace torvik::sample
