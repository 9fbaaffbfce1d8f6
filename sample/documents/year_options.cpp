#include "sample/documents/article.h"
#include "sample/documents/figures.h"
#include "sample/documents/year_articles.h"
#include "sample/files/text_store.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

void AddPriced(Article& article, const QString& text, const QString& price)
{
    Paragraph line = article.Plain(text + u'\t' + price);
    line.mark = Mark::Bullet;
    line.left = 500;
    line.first = -300;
    line.after = 30;
    line.tabs = {{500, TabStop::Kind::Left, false}, {7000, TabStop::Kind::Right, true}};
    article.Add(line);
}

int AddEngines(Article& article, int year)
{
    article.Heading(u"Engines"_s);
    int sum = 0;
    for (const Engine& engine : EnginesOf(year)) {
        const QString text = u"*%1*, %2 bhp"_s.arg(EngineName(engine)).arg(engine.power);
        const int price = PriceIn(year, engine.extra);
        AddPriced(article, text, engine.extra == 0 ? u"standard"_s : Dollars(price));
        sum = std::max(sum, engine.extra == 0 ? 0 : price);
    }
    return sum;
}

} // namespace

RichDocument YearOptions(int year)
{
    Article article = NewYearArticle(year, YearArticle::Options, u"%1 options"_s.arg(year));
    article.Title(u"Options of %1"_s.arg(year));
    article.Text(u"Every buyer put a car together from the dealer’s order sheet. These are the lines of the "
                 "sheet, with the prices of the autumn before the season; a coupe with nothing ticked cost "
                 "*%1*."_s.arg(Dollars(ModelYearOf(year).price)));
    int most = AddEngines(article, year);
    int lines = 0;
    for (const OptionGroup group :
         {OptionGroup::Drive, OptionGroup::Comfort, OptionGroup::Looks, OptionGroup::Sound}) {
        article.Heading(GroupName(group));
        for (const Option& option : OptionsOf(year, group)) {
            const int price = PriceIn(year, option.price);
            AddPriced(article, QString::fromUtf8(option.name), Dollars(price));
            most += price;
            ++lines;
        }
    }
    article.Rule();
    Paragraph sum = article.Plain(
        u"*Everything at once*, the largest engine included: %1 lines of the sheet\t*%2*"_s.arg(lines + 1)
            .arg(Dollars(most)));
    sum.tabs = {{7000, TabStop::Kind::Right, true}};
    article.Add(sum);
    const std::map<QString, TextSection> advice = StoredSections(u"order_advice"_s);
    Paragraph hint = article.Plain(u'_' + advice.at(QString::number(year % 7)).body.simplified() + u'_');
    hint.before = 160;
    article.Add(hint);
    return article.Take();
}

} // namespace torvik::sample
