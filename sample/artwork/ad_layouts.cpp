#include "sample/artwork/ad_layouts.h"

#include "sample/artwork/ad_type.h"
#include "sample/geometry/shapes.h"
#include "sample/render/painting_words.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {
/// The page's colour where it can be read on the paper, else that of the text.
QColor LeadInk(const PlannedAd& plan)
{
    const int contrast = std::abs(qGray(plan.accent.rgb()) - qGray(plan.paper.rgb()));
    return contrast > 105 ? plan.accent : plan.ink;
}

/// Argument `at`, where there is one, as an alignment.
Qt::Alignment AlignmentOf(const Arguments& a, std::size_t at)
{
    const QString side = a.size() > at ? a[at].Text() : QString();
    return side == "centre"_L1 ? Qt::AlignHCenter : side == "justified"_L1 ? Qt::AlignJustify : Qt::AlignLeft;
}

Value SetHeadline(const AdPage& page, const Arguments& a)
{
    const QPainterPath headline = FittedHeadline(page.copy.headline, a.Box(0), page.plan.headline, a.Whole(1),
                                                 a.Number(2), AlignmentOf(a, 3));
    page.painter.fillPath(headline, page.plan.ink);
    return headline.boundingRect().bottom();
}

void SetLead(const AdPage& page, const Arguments& a)
{
    Type type = page.plan.body;
    type.italic = page.plan.year < 1979;
    type.bold = page.plan.year >= 1979;
    SetColumns(page.painter, {page.copy.lead}, {a.Box(0)},
               {type, a.Colour(1), a.Number(2), AlignmentOf(a, 3)});
}

void SetBody(const AdPage& page, const Arguments& a)
{
    std::vector<QRectF> columns;
    for (const Value& column : a.Items(0))
        columns.push_back(column.Box());
    SetColumns(page.painter, page.copy.paragraphs, columns,
               {page.plan.body, page.plan.ink, a.Number(1), AlignmentOf(a, 2)});
}

Value Columns(const Arguments& a)
{
    Value::List columns;
    for (const QRectF& column : ColumnsIn(a.Box(0), a.Whole(1), a.Number(2)))
        columns.emplace_back(column);
    return columns;
}

void TeachPage(Script& script, const AdPage& page)
{
    using Action = void (*)(const AdPage&, const Arguments&);
    constexpr std::pair<const char*, Action> actions[] = {
        {"setLead", SetLead},
        {"setColumns", SetBody},
        {"setPhoto",
         [](const AdPage& p, const Arguments& a) {
             const QRectF box = a.Box(0);
             p.painter.drawImage(box, AdPhoto(p.plan, box.size().toSize()));
         }},
        {"drawPriceBox",
         [](const AdPage& p, const Arguments& a) { DrawPriceBox(p, a.Box(0), a.Colour(1), a.Colour(2)); }},
        {"drawEngines", [](const AdPage& p, const Arguments& a) { DrawEngines(p, a.Box(0), a.Colour(1)); }},
        {"drawColourRow",
         [](const AdPage& p, const Arguments& a) { DrawColourRow(p, a.Box(0), a.Colour(1)); }},
        {"drawSignature",
         [](const AdPage& p, const Arguments& a) { DrawSignature(p, a.Box(0), a.Colour(1)); }},
    };
    for (const auto& [name, action] : actions) {
        script.Teach(name, [&page, action](const Arguments& a) {
            action(page, a);
            return Value();
        });
    }
    script.Teach("setHeadline", [&page](const Arguments& a) { return SetHeadline(page, a); });
    script.Teach("columnsIn", Columns);
}

} // namespace

QImage PaintAd(const PlannedAd& plan)
{
    QImage sheet(plan.Size(), QImage::Format_RGB32);
    sheet.fill(plan.paper);
    SmoothPainter painter(&sheet);
    const AdCopy copy = AdCopyOf(plan.year);
    const AdPage page{painter, plan, copy};
    Script script("ad_pages");
    TeachPainting(script, painter);
    TeachPage(script, page);
    const std::pair<const char*, Value> words[] = {
        {"layout", static_cast<int>(plan.layout)},
        {"year", plan.year},
        {"paper", plan.paper},
        {"ink", plan.ink},
        {"accent", plan.accent},
        {"leadInk", LeadInk(plan)},
        // Fashion: columns with two straight edges to the end of the seventies, with one since.
        {"edge", plan.year < 1979 ? u"justified"_s : u"left"_s}};
    for (const auto& [word, value] : words)
        script.Set(QString::fromLatin1(word), value);
    script.Run();
    return sheet;
}

} // namespace torvik::sample
