#include "sample/car/car_shape.h"
#include "sample/documents/article_source.h"
#include "sample/documents/drawings.h"
#include "sample/documents/figures.h"
#include "sample/documents/year_articles.h"
#include "sample/files/text_store.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

QString BodiesOf(const ModelYear& year)
{
    QString bodies = u"coupe"_s;
    if (year.fastbacks > 0)
        bodies += u", "_s + FastbackName(year.year).toLower();
    if (year.convertibles > 0)
        bodies += u", convertible"_s;
    return bodies;
}

QString EngineRange(int year)
{
    const std::vector<Engine> engines = EnginesOf(year);
    int most = 0;
    for (const Engine& engine : engines)
        most = std::max(most, engine.power);
    return u"%1, %2 to %3 bhp"_s.arg(engines.size()).arg(engines.front().power).arg(most);
}

Paragraph Fact(const Article& article, const char* name, const QString& value)
{
    Paragraph fact = article.Plain(u"~*%1*~\t%2"_s.arg(QString::fromLatin1(name), value));
    fact.tabs = {{1150, TabStop::Kind::Left, false}};
    fact.left = 1150;
    fact.first = -1150;
    fact.after = 40;
    for (Run& run : fact.runs)
        run.look.halfPoints = 19;
    return fact;
}

/// Two columns of facts on a faint ground.
Table FactsOf(const Article& article, const ModelYear& year)
{
    const Measures measures = MeasuresOf(year.year);
    const auto inches = [](int millimetres) -> QString {
        return QString::number(millimetres / 25.4, 'f', 1) + u'″';
    };
    Table table{.widths = {3600, 3600}, .border = Border::Rules};
    Cell left{{Fact(article, "Bodies", BodiesOf(year)), Fact(article, "Engines", EngineRange(year.year)),
               Fact(article, "Built", Grouped(year.Built()))},
              article.Tint(),
              1};
    Cell right{{Fact(article, "Price", u"from "_s + Dollars(year.price)),
                Fact(article, "Length",
                     u"%1 m (%2)"_s.arg(measures.length / 1000.0, 0, 'f', 2).arg(inches(measures.length))),
                Fact(article, "Weight", u"%1 kg, coupe"_s.arg(Grouped(year.weight)))},
               article.Tint(),
               1};
    Row row{.cells = {left, right}, .heading = true};
    table.rows.push_back(row);
    return table;
}

QString ProductionSentence(const ModelYear& year)
{
    QString text = u"The works built *%1* cars of the %2 season"_s.arg(Grouped(year.Built())).arg(year.year);
    if (year.year > 1967) {
        const double before = ModelYearOf(year.year - 1).Built();
        const double change = 100.0 * (year.Built() - before) / before;
        if (change > 1 || change < -1)
            text += u", %1% %2 than in the season before"_s.arg(qAbs(change), 0, 'f', 0)
                        .arg(change > 0 ? u"more"_s : u"fewer"_s);
        else
            text += u", about as many as in the season before"_s;
    }
    if (year.convertibles > 0) {
        text += u"; %1 of them left Port Averel with a folding top. "_s.arg(Grouped(year.convertibles));
    } else {
        text += u". There was no convertible. "_s;
    }
    return text +
           u"A coupe with the standard engine cost %1 before tax and delivery."_s.arg(Dollars(year.price));
}

} // namespace

RichDocument YearDescription(int year)
{
    const ModelYear& figures = ModelYearOf(year);
    const std::map<QString, TextSection> texts = StoredSections(u"years_%1"_s.arg(year / 10));
    const std::map<QString, TextSection> shapes = StoredSections(u"shapes"_s);
    const TextSection& text = texts.at(QString::number(year));
    const TextSection& shape = shapes.at(u"g%1"_s.arg(GenerationOfYear(year)));

    Article article = NewYearArticle(year, YearArticle::Description, u"%1 Torvik Vollandry"_s.arg(year));
    article.Title(u"%1 Torvik Vollandry"_s.arg(year));
    article.Aligned(u'_' + text.title + u'_', Align::Centre);
    article.Add(CarDrawing(year, 5300));
    AddSource(article, text.body);
    article.AddTable(FactsOf(article, figures));
    article.Heading(shape.title);
    AddSource(article, shape.body);
    article.Heading(u"How many, and for how much"_s);
    article.Text(ProductionSentence(figures));
    return article.Take();
}

} // namespace torvik::sample
