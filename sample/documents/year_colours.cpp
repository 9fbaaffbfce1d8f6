#include "sample/documents/article.h"
#include "sample/documents/colour_cards.h"
#include "sample/documents/figures.h"
#include "sample/documents/year_articles.h"

#include <algorithm>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

QString ParagraphOnTaste(const std::vector<CardColour>& card, int year)
{
    const auto byShare = [](const CardColour& a, const CardColour& b) { return a.share < b.share; };
    const CardColour& most = *std::max_element(card.begin(), card.end(), byShare);
    const CardColour& least = *std::min_element(card.begin(), card.end(), byShare);
    const auto metallic =
        std::count_if(card.begin(), card.end(), [](const CardColour& c) { return c.metallic; });
    return u"The card of %1 held *%2* colours, %3 of them with metal flakes. Most buyers chose "
           "_%4_, which "
           "went on one car in %5; the rarest was _%6_, with %7 percent."_s.arg(year)
               .arg(card.size())
               .arg(metallic)
               .arg(most.name)
               .arg(qRound(100 / most.share))
               .arg(least.name)
               .arg(least.share, 0, 'f', 1);
}

/// A cell that is nothing but its colour.
Cell Swatch(const Article& article, const QColor& colour)
{
    Cell cell = article.CellOf(QString(QChar(0x00A0)));
    cell.shade = colour;
    return cell;
}

void AddCard(Article& article, const std::vector<CardColour>& card, int year)
{
    Table table{.widths = {1300, 2800, 800, 1200, 1100}};
    Row head{.cells = {article.HeadCell(u"Colour"_s), article.HeadCell(u"Name"_s),
                       article.HeadCell(u"Code"_s, Align::Centre), article.HeadCell(u"Finish"_s),
                       article.HeadCell(u"Share"_s, Align::Right)},
             .heading = true};
    table.rows.push_back(head);
    for (const CardColour& colour : card) {
        Row row;
        QString name = u'*' + colour.name + u'*';
        if (colour.extra)
            name += u"\n_special colour, +%1_"_s.arg(Dollars(PriceIn(year, 19)));
        row.cells = {Swatch(article, colour.colour), article.CellOf(name),
                     article.CellOf(colour.code, Align::Centre),
                     article.CellOf(colour.metallic ? u"metallic"_s : u"plain"_s),
                     article.CellOf(u"%1 %"_s.arg(colour.share, 0, 'f', 1), Align::Right)};
        table.rows.push_back(row);
    }
    article.AddTable(table);
}

void AddTrims(Article& article, int year)
{
    article.Heading(u"Seats and trim"_s);
    Table table{.widths = {1300, 2500, 3400}, .border = Border::Rules};
    Row head{
        .cells = {article.HeadCell(u"Trim"_s), article.HeadCell(u"Name"_s), article.HeadCell(u"Material"_s)},
        .heading = true};
    table.rows.push_back(head);
    for (const SeatTrim& trim : SeatTrims(year)) {
        Row row{.cells = {Swatch(article, QColor(QRgb(trim.colour))), article.CellOf(trim.name),
                          article.CellOf(trim.cloth)}};
        table.rows.push_back(row);
    }
    article.AddTable(table);
}

} // namespace

RichDocument YearColours(int year)
{
    const std::vector<CardColour> card = ColourCard(year);
    Article article = NewYearArticle(year, YearArticle::Colours, u"%1 colours"_s.arg(year));
    article.Title(u"Colours of %1"_s.arg(year));
    article.Text(ParagraphOnTaste(card, year));
    AddCard(article, card, year);
    AddTrims(article, year);
    Paragraph hint = article.Plain(u"The code stands on the plate at the driver’s door, after "
                                   "the letter of the engine. Screens differ: hold the old "
                                   "paint chip beside your own before you order a litre."_s);
    hint.before = 160;
    hint.boxed = true;
    hint.shade = article.Tint();
    hint.left = 120;
    hint.right = 120;
    article.Add(hint);
    return article.Take();
}

} // namespace torvik::sample
